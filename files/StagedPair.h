#pragma once

/// Where a new pair of part files stands while it takes the place of an old one.
///
/// A pair NAME is first written into the folder `.NAME.writing` beside it. Renaming that folder to
/// `.NAME.new` makes the new pair count, in one step; its files are then moved to their own names, and the
/// folder goes. As long as a file stands in `.NAME.new`, it is read from there.

#include <filesystem>
#include <string>
#include <string_view>

/// The folder that a pair, FOLDER/NAME without extension, is written into; nobody reads there.
std::filesystem::path WritingFolderOf(const std::filesystem::path& pair);

/// The folder of a pair that is whole and counts.
std::filesystem::path StagedFolderOf(const std::filesystem::path& pair);

/// The pair FOLDER/NAME whose folder of either kind this is; empty for any other name.
std::filesystem::path PairOfWriting(const std::filesystem::path& folder);
std::filesystem::path PairOfStaged(const std::filesystem::path& folder);

/// The path in one of these folders of the file with an extension, such as ".idx".
std::filesystem::path FileInStage(const std::filesystem::path& folder, std::string_view extension);

/// Where the file of a part file's name stands while a commit is under way; itself for a name without
/// extension.
std::filesystem::path StagedOf(const std::filesystem::path& partFile);

/// True while a commit keeps the file at `StagedOf` its name, where it is to be read then.
bool IsStaged(const std::filesystem::path& staged);

/// The file that is to be read where a part file is asked for: the staged one, if there is one, else itself.
std::filesystem::path WhereRead(const std::filesystem::path& partFile);

/// "NAME.idx" where the folder's entry is a staged pair that has such a file, or had it a moment ago; else
/// empty.
std::string NameOfStaged(const std::filesystem::path& entry, std::string_view extension);

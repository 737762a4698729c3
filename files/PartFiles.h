#pragma once

/// Finds part files: those of the program's folder, and the two that a user names as one pair.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// What the names of the two files of a pair end in.
inline constexpr std::string_view IndexExtension = ".idx";
inline constexpr std::string_view DataExtension = ".dat";

/// The separator between a program folder and a file name: the first character of a path that begins with
/// a separator, the third of one that begins with a drive letter, else a slash.
char PathSepOf(std::string_view programFolder);

/// The alphabetical order of part files: letter case counts only where names differ in nothing else.
bool StandsBefore(std::string_view a, std::string_view b);

/// The names in a folder that end in `extension`, in alphabetical order. Letter case does not count
/// in the extension. Folders are no part files, whatever their
/// name; the files of a pair that is being put in place count by the names that they will bear. Empty for a
/// folder that is not there.
///
/// Throws RunTimeError 70 or 75 when the folder cannot be read.
std::vector<std::string> NamesOfPartFiles(const std::string& folder, std::string_view extension);

/// The path of the first file, in that order, whose name ends in `extension`, such as ".idx".
///
/// Throws RunTimeError 53 "*.idx", with the folder, when there is none, 70 or 75 when the folder cannot be
/// read.
std::string FindPartFile(const std::string& programFolder, std::string_view extension);

/// The two files of a pair.
struct PairPaths
{
    std::filesystem::path Index;
    std::filesystem::path Data;
};

/// The two files FOLDER/NAME.idx and FOLDER/NAME.dat of FOLDER/NAME.
PairPaths PairNamed(const std::filesystem::path& name);

/// The index file of a pair: the first of a folder, in alphabetical order, or the named file itself.
/// Throws RunTimeError 53 when a folder holds none.
std::filesystem::path IndexFileOf(const std::filesystem::path& pair);

/// The data file of a pair: the first of a folder, or the file beside the named index file that bears its
/// name with the extension ".dat", in any letter case. Throws RunTimeError 53 when there is none.
std::filesystem::path DataFileOf(const std::filesystem::path& pair);

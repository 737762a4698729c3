#pragma once

/// The texts that stand in the sources of the program.

#include <filesystem>
#include <string>
#include <vector>

/// One text of a source, literals that follow each other joined; characters are texts, too.
struct SourceText
{
    /// As it stands between the quotes, escapes and all.
    std::string Text;
    /// What stands before it in its statement.
    std::string Before;
    /// Where its statement begins.
    std::size_t Statement;
};

/// The texts of a source, in order, without those of its comments.
std::vector<SourceText> TextsOfSource(const std::string& source);

/// The sources of a folder, without its subfolders, in order of name.
std::vector<std::filesystem::path> SourcesIn(const std::filesystem::path& folder);

/// The fixed pieces of a text, between its values and line breaks, each with a word at least.
std::vector<std::string> PiecesOf(const std::string& text);

/// Whether a text has two words, and more than values in it.
bool HasWords(const std::string& text);

#pragma once

/// What the tests of the help books share: their texts, and parts of these.

#include <filesystem>
#include <string>
#include <vector>

/// All bytes of a file.
std::string FileText(const std::filesystem::path& path);

/// The text of a book as it is made, by its file name.
std::string BookText(const std::string& name);

/// First groups of all matches of a regular expression, in order.
std::vector<std::string> All(const std::string& text, const char* pattern);

/// The text with its lines joined and its entities and tags taken away.
std::string PlainText(std::string text);

/// The same with its lines and blanks as they stand.
std::string WithoutTags(std::string text);

/// What stands from the heading of an anchor to the next heading.
std::string Section(const std::string& book, const std::string& anchor);

#pragma once

/// Finds the part files in the program's folder.

#include <string>
#include <string_view>

/// The separator between a program folder and a file name: the first character of a path that begins with
/// a separator, the third of one that begins with a drive letter, else a slash.
char PathSepOf(std::string_view programFolder);

/// The path of the first file, in alphabetical order, whose name ends in `extension`, such as ".idx".
/// Letter case counts neither in the extension nor in the order, unless names differ in nothing else.
///
/// Throws RunTimeError 53 "*.idx" when there is none, 70 or 75 when the folder cannot be read.
std::string FindPartFile(const std::string& programFolder, std::string_view extension);

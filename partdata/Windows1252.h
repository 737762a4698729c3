#pragma once

/// The single-byte code page of part files and saved data files.

#include <string>
#include <string_view>

/// A text of the code page as UTF-8.
std::string Utf8FromWindows1252(std::string_view text);

/// A UTF-8 text in the code page; a character outside it, or a malformed one, is "?".
std::string Windows1252FromUtf8(std::string_view text);

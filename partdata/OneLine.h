#pragma once

/// Texts from files where a line break or a command to a terminal would do harm. All texts are UTF-8.

#include <cstddef>
#include <string>
#include <string_view>

/// The text with its control characters, those of 0x80 to 0x9F included, as "\x0A".
std::string WithoutControls(std::string_view text);

/// The text on one line: control characters as "\x0A", no more than 80 characters of it, "..." for the rest.
std::string OneLine(std::string_view text);

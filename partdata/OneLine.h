#pragma once

/// Texts from files within messages of one line.

#include <cstddef>
#include <string>
#include <string_view>

/// The text with its control characters as "\x0A".
std::string WithoutControls(std::string_view text);

/// The text on one line: control characters as "\x0A", no more than 80 characters of it, "..." for the rest.
std::string OneLine(std::string_view text);

#pragma once

/// Texts of the help as a terminal shows them.

#include <string>
#include <string_view>

/// The text with its lines broken between words, each of them at most 112 characters long.
std::string Wrapped(std::string_view text);

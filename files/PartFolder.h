#pragma once

/// Which folder the part files are taken from.

#include <optional>
#include <string>

/// The folder that a user names for the part files: the one of the option `--data` or, when that is empty,
/// the one in the variable `TAVIK_DATA`. Nothing when both are left out: a program then takes the part files
/// that lie beside it. A variable without a text counts as left out.
std::optional<std::string> NamedPartFolder(const std::string& option);

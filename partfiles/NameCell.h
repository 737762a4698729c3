#pragma once

/// Names of parts in the cells of tables.

#include <string>
#include <string_view>

/// Takes a name in UTF-8 into the code page of the index; returns what keeps it from standing there, or
/// nothing.
std::string ReadNameCell(std::string_view utf8, std::string& name);

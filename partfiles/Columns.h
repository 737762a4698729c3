#pragma once

/// The columns of the part table: the names and the values of a part, these with their units.

#include "partdata/FieldNames.h"

#include <cstddef>
#include <string_view>

inline constexpr std::size_t TableColumns = NameFields + DataValues;

/// The heading of each column: first the names in the order of the index, then the values.
///
///     ColumnHeading(10)   // "rated voltage [V]"
std::string_view ColumnHeading(std::size_t column);

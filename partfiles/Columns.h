#pragma once

/// The columns of the part table: the names and the values of a part, these with their units.

#include "partdata/PartRecord.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

/// The fields of an index record, in its order.
inline constexpr std::size_t NameFields = PartNumForms + 2 * CodeForms;
/// Where the size codes and the characteristics begin, EIA code first.
inline constexpr std::size_t FirstSizeCodeField = PartNumForms;
inline constexpr std::size_t FirstTccField = PartNumForms + CodeForms;
inline constexpr std::size_t TableColumns = NameFields + DataValues;

using PartNames = std::array<std::string_view, NameFields>;

/// The heading of each column: first the names in the order of the index, then the values.
///
///     ColumnHeading(10)   // "rated voltage [V]"
std::string_view ColumnHeading(std::size_t column);

/// The names of a part in the order of the index.
PartNames NamesOf(const PartRecord& part);

/// What a name, in the order of the index, is called where it is stored: "PartNum(0)", "SizeCode(1)",
/// "Tcc(0)".
std::string FieldName(std::size_t field);

/// As `FieldName`, for the value `Data(index)`: "Data(31)".
std::string DataName(std::size_t index);

/// "Data(28) to Data(30)".
std::string DataNames(ValueGroup group);

#pragma once

/// The names of a part in the order of the index, and what its fields are called where they are stored.

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

using PartNames = std::array<std::string_view, NameFields>;

/// The names of a part in the order of the index.
PartNames NamesOf(const PartRecord& part);

/// What a name, in the order of the index, is called where it is stored: "PartNum(0)", "SizeCode(1)",
/// "Tcc(0)".
std::string FieldName(std::size_t field);

/// What tables call a name, in the order of the index: "global part number EIA", "size code JIS".
std::string_view NameHeading(std::size_t field);

/// As `FieldName`, for the value `Data(index)`: "Data(31)".
std::string DataName(std::size_t index);

/// "Data(28) to Data(30)".
std::string DataNames(ValueGroup group);

#pragma once

/// What a model is called.

#include <string>
#include <string_view>

/// The name of the subcircuit of a part number: characters other than A-Z, a-z, 0-9 and _ are "_", and one
/// that does not begin with a letter has "C_" before it.
///
///     ModelName("KTS31NB51A476MA01")   // "KTS31NB51A476MA01"
///     ModelName("0603-X7R/10")         // "C_0603_X7R_10"
std::string ModelName(std::string_view partNum);

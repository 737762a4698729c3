#pragma once

/// The nine parts whose capacitance follows the polynomial model whatever their characteristic.

#include <string_view>

/// True exactly for the nine special part numbers, compared letter by letter, case included.
bool IsSpecialPart(std::string_view partNum);

#pragma once

/// What stands between the cells of a line.

#include <string_view>

/// A tab where the line has one, else a semicolon, else a comma, which count outside quotes and brackets
/// alone, else a blank: then any run of blanks separates.
///
///     SeparatorOf("time;V(a,b)")   // ';'
///     SeparatorOf("time V(a,b)")   // ' '
char SeparatorOf(std::string_view line);

/// True for a separator beside which a comma may be the decimal sign: a semicolon and a tab.
constexpr bool TakesDecimalComma(char separator)
{
    return separator == ';' || separator == '\t';
}

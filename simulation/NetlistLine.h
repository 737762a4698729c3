#pragma once

/// Lines of a netlist at a length that every simulator and printer takes.

#include <string>
#include <string_view>

/// The longest line, in characters: 100 with its end.
inline constexpr std::size_t LongestNetlistLine = 99;

/// The line with its end, continued on further lines where it is too long. It is broken before "*" alone,
/// where no simulator sees an end of the expression.
std::string NetlistLine(std::string_view line);

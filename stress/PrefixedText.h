#pragma once

/// Numbers of reports, in plain characters.

#include <string>
#include <string_view>

/// A value with its prefix from p to M before the unit, rounded to so many significant digits, zeros behind
/// the point kept where `keepsZeros`: "272 us", "2.0000 us".
std::string PrefixedText(double value, std::string_view unit, int digits, bool keepsZeros = false);

#pragma once

/// Numbers in the words of a fit's report.

#include "calc/Quantities.h"

#include <cstddef>
#include <string>
#include <string_view>

/// At most four digits: "24.25", "-55".
std::string Shortened(double value);

/// "3 points", "1 bias", "7 biases".
std::string CountText(std::size_t count, std::string_view noun);

/// "74.6 %" of 0.746.
std::string Percent(double share, int decimals);

/// "+1.10 %", "-0.86 %".
std::string SignedPercent(double share, int decimals);

/// A value with four digits, in letters that every terminal has: "9.984 uF".
std::string PlainText(Quantity quantity, double value);

/// A rated value without digits that tell nothing: "10 uF".
std::string RatedText(Quantity quantity, double value);

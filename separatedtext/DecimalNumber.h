#pragma once

/// Numbers in the cells of a table, with a point or a comma as decimal sign.

#include <optional>
#include <string>
#include <string_view>

/// The number that a cell is, nearest in double precision: digits with at most one decimal sign, a sign
/// before them and an exponent behind them. A comma is a decimal sign where `takesComma` says so, see
/// `TakesDecimalComma`. One too small for a double is 0; nothing for one too large and for any other text,
/// "inf" and "nan" among them.
///
///     DecimalIn("4,7E-6", true)   // 4.7e-6
std::optional<double> DecimalIn(std::string_view cell, bool takesComma);

/// The text with a point in the place of a decimal comma, for readers that know no other: "4,7 uF" as "4.7
/// uF". Without a comma, or with more of them, or with a point beside it, the text as it is.
std::string WithDecimalPoint(std::string_view cell);

#pragma once

/// Numbers as the user reads and types them, the same in every locale.

#include <optional>
#include <string>
#include <string_view>

/// Shortest decimal text that reads back to the same single: plain digits while 1e-6 <= |v| < 1e15,
/// else with an exponent.
///
///     NumberText(2.5F)      // "2.5"
///     NumberText(1e7F)      // "10000000"
///     NumberText(1.5e-7F)   // "1.5E-07"
///     NumberText(1e15F)     // "1E+15"
///
/// What is not finite reads "inf", "-inf" or "nan", here and in the texts below.
std::string NumberText(float value);

/// Text of a tick at `value` on an axis that spans `range`: number text of the value rounded to six
/// significant digits, "0" for what is smaller than a millionth of the range.
std::string TickText(double value, double range);

/// The number that one of these texts tells.
double ToldBy(std::string_view text);

/// The number formats of charts, panes and data files. Rounding is half away from zero on the shortest
/// decimal of the value.
enum class NumberFormat
{
    ScientificTwo,   ///< "0.00E+00": 1.00E+03, -1.50E+01
    ScientificShort, ///< "#.00E+##": 1.00E+4, 1.25E-1
    PaneValue,       ///< "##.###": 12.3, 12, .5
    ReadOut,         ///< "0.###": 12, 0.5
    WholeTick,       ///< "#####0": 12, 0
    FractionTick,    ///< "0.#####": 0.00125, 12
};

/// The value in one of the formats; a single's shortest decimal is what gets rounded. No text is a negative
/// zero: -0.001 as a `WholeTick` is "0".
///
/// A zero as a `PaneValue` is the empty text, since "#" shows a digit only where there is one; the pane that
/// shows it puts a "0" there. A zero in the scientific formats is "0.00E+00" and "0.00E+0".
std::string FormatNumber(float value, NumberFormat format);

/// The same of the value that a tick's text tells, with so many decimals beyond those of the format:
///
///     FormatTick(9994000, NumberFormat::ScientificShort, 1)   // "9.994E+6"
std::string FormatTick(double value, NumberFormat format, int moreDecimals);

/// The value times ten to the power `shift`, with exactly `decimals` digits behind the point, rounded half
/// away from zero on its shortest decimal; "0" for what rounds to nothing.
///
///     FixedNumber(89960000, 2, -6)   // "89.96"
std::string FixedNumber(double value, int decimals, int shift = 0);

/// The value of an entry, or nothing when it is not numeric.
///
/// Numeric is an optional sign, digits, at most one decimal sign and an optional exponent, with blanks
/// around it. The decimal sign is a point, and a comma as well where `commaIsDecimal`. A number that does
/// not fit a single is numeric: infinite when too large, zero when too small.
std::optional<float> ReadEntry(std::string_view text, bool commaIsDecimal = false);

#pragma once

/// Ticks of linear axes: where they stand and how they read.

#include <string>

#include <vector>

/// A tick of a linear axis.
struct LinearTick
{
    /// Position in plot units, 0 to 100.
    double At;
    float Value;
};

/// The ticks that split a range into divisions, both ends included; values are accumulated step by step in
/// single precision. None for 0 divisions or a range without width.
std::vector<LinearTick> LinearTicks(float minimum, float maximum, int divisions);

/// The label of a tick on the X axis.
struct XTickLabel
{
    std::string Text;
    /// The plain text is 5 characters or longer, so the label is in the form "#.00E+##".
    bool Exponent;
};

/// How a value reads below the X axis. The length of the plain text decides, not the magnitude:
///
///     1000 -> "1000"   10000 -> "1.00E+4"   0.125 -> "1.25E-1"   -12.5 -> "-1.25E+1"
///
/// @param range width of the axis, which tells what is a rounding error of zero
XTickLabel LabelOfXTick(float value, float range);

/// How the ticks of a Y axis read, all in one format: "#.00E+##" when the largest is 1E6 or more in
/// magnitude, or all but zero are below 0.1; else "#####0" where all are whole, else "0.#####". A zero reads
/// "0". All take more digits, up to six, where neighbours would read alike or the last would not read as the
/// maximum.
///
///     0, 2.4, .. 12       -> "0" "2.4" .. "12"
///     0, 2.4E6, .. 1.2E7  -> "0" "2.40E+6" .. "1.20E+7"
///     9990000, 9992000, .. 1E7 -> "9.990E+6" "9.992E+6" .. "1.000E+7"
///
/// @param minimum the range that the ticks split, up to `maximum`
std::vector<std::string> LabelsOfYTicks(const std::vector<LinearTick>& ticks, float minimum, float maximum);

#pragma once

/// Grid lines and labels of logarithmic axes.

#include <string>

#include <vector>

/// A grid line of a logarithmic axis, in plot units.
struct LogLine
{
    double At;
    /// A power of ten, not one of the lines between.
    bool Decade;
};

/// A labelled place of a logarithmic axis.
struct LogLabel
{
    /// Position in plot units, 0 to 100.
    double At;
    double Value;
    /// An end of the range that is not a power of ten.
    bool RangeEnd;
};

/// What is drawn along a logarithmic axis.
struct LogTicks
{
    std::vector<LogLine> Lines;
    std::vector<LogLabel> Labels;
};

/// Lines at every j * 10^k inside the range, and a label at every power of ten there. The ends of a range
/// below two decades are labelled too, so that the axis can be read. Nothing for a range without extent.
///
/// With w the width of a decade, a range from a power of ten on has its lines at (i + log10 j) * w.
LogTicks LogarithmicTicks(float minimum, float maximum);

/// How a labelled value reads: plainly from 0.001 to below a million, else in the form "#.00E+##" with as
/// many decimals, up to five, as tell six digits of it.
std::string LabelOfLogTick(double value);

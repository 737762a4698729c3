#pragma once

/// How far a user may set the ranges of a chart.

#include "chart/layout/ChartView.h"

#include <optional>
#include <string>
#include <string_view>

/// The permitted values of an axis, bounds included; frequencies in kHz.
struct PermittedRange
{
    float Lowest;
    float Highest;

    bool Contains(float value) const { return value >= Lowest && value <= Highest; }
};

/// Frequency: 10 to 1000 kHz. Any other axis: one span of the lines' default range further on either side, a
/// span of zero counting as 1, but never below 0 for a quantity that cannot be negative.
PermittedRange PermittedXRange(const ChartKey& chart, const AxisRange& defaultRange);

/// As for X; a logarithmic axis goes from a tenth of the default range's lowest to ten times its highest.
PermittedRange PermittedYRange(const ChartKey& chart, const AxisRange& defaultRange);

/// The message that refuses to set the axis "X" or "Y" of a quantity so, or nothing: both ends must be
/// permitted, and the first below the second. In shown units.
std::optional<std::string> RefusalOfRange(std::string_view axis, const std::string& quantity,
                                          const PermittedRange& permitted, float from, float to);

#pragma once

/// What a calculation hands back: the points of one curve and the default limits of its axes.

#include "calc/ChartRecord.h"

/// Default axis limits of one line, in the unit of their axis; frequency in Hz.
struct AxisLimits
{
    float XMax = 0;
    float YMax = 0;
    float XMin = 0;
    float YMin = 0;

    bool operator==(const AxisLimits&) const = default;
};

/// One curve. All values are finite, but for `NoValue` at points without one.
struct Curve
{
    /// False when the calculation stores no point; `XData` and `YData` are then zero.
    bool HasPoints = false;
    CurveValues XData{};
    CurveValues YData{};
    AxisLimits Limits{};
    /// The largest allowable load; 0 for every chart type but allowable power.
    float ExtraValue = 0;
};

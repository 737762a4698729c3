#pragma once

/// What is to be drawn: a chart and the ranges of its axes.

#include "calc/ChartStore.h"
#include "calc/Quantities.h"

/// The axis ranges of a chart in the order in which a chart window keeps them.
struct AxisRange
{
    float XMax;
    float YMax;
    float XMin;
    float YMin;

    bool operator==(const AxisRange&) const = default;
};

/// What is to be drawn: a chart and its ranges.
struct ChartView
{
    ChartKey Chart;
    AxisRange Range;
    /// The user has set the range: both linear axes then have five divisions.
    bool Rescaled = false;
    /// Stands in the units of temperatures.
    std::string DegreeSign = std::string(defaultDegreeSign);
};

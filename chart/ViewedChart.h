#pragma once

/// What a chart view asks of the chart that it shows.

#include "chart/ChartHost.h"
#include "chart/layout/ViewedCurve.h"

#include <vector>

/// A chart window as its view knows it.
class ViewedChart
{
public:
    virtual ~ViewedChart() = default;

    /// The chart and the range in force.
    virtual ChartView View() const = 0;
    /// Its lines in store order: at least one, at most six.
    virtual std::vector<ViewedLine> ViewedLines() const = 0;
    /// Draws the chart window in this range, as its own dialog does.
    virtual void SetRange(const AxisRange& range) = 0;
    virtual ChartHost& Host() = 0;
};

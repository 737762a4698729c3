#pragma once

/// Draws a chart: axes, grid, titles and the curves of its lines.

#include "calc/ChartStore.h"
#include "chart/drawing/ChartSurface.h"

#include <span>

/// The axis ranges of a chart in the order in which a chart window keeps them.
struct AxisRange
{
    float XMax;
    float YMax;
    float XMin;
    float YMin;
};

/// What is to be drawn: a chart and its ranges.
struct ChartView
{
    ChartKey Chart;
    AxisRange Range;
    /// The user has set the range: both linear axes then have five divisions.
    bool Rescaled = false;
};

/// The range that covers the default limits of all lines of the chart.
AxisRange DefaultRange(const ChartKey& chart, std::span<const ChartRecord> lines);

/// Grid, tick labels, axis titles, note and frame.
void DrawAxes(const ChartView& view, ChartSurface& surface);

/// Writes the plot positions of every point of the chart's lines into `XPos` and `YPos`.
void PlaceCurves(const ChartView& view, std::span<ChartRecord> lines);

/// The curves of the chart's lines, in store order, from their placed points.
void DrawCurves(const ChartView& view, std::span<const ChartRecord> lines, ChartSurface& surface);

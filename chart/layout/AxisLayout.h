#pragma once

/// The grid and the tick labels of a chart, worked out before anything is drawn.

#include "chart/layout/ChartSurface.h"
#include "chart/layout/ChartView.h"

#include <string>
#include <vector>

/// A grid line across the plot area.
struct GridLine
{
    /// Position in plot units, 0 to 100.
    double At;
    ::Color Color;
};

/// A tick label and the user coordinates of its upper left corner.
struct AxisLabel
{
    double X;
    double Y;
    std::string Text;
    /// Width of its letters against those of the font: below 1 where it is condensed.
    double Across = 1;
};

struct AxisLayout
{
    std::vector<GridLine> Grid;
    std::vector<AxisLabel> Labels;
};

/// The X axis: vertical grid lines, and labels below the plot that end inside the surface. Where labels would
/// touch, only every second (third) one stands. Frequency is labelled in kHz. Of the surface only its
/// measures of texts count.
AxisLayout LayOutXAxis(const ChartView& view, const ChartSurface& surface);

/// The Y axis: horizontal grid lines, and labels that end at the axis, clear of the title at the left edge
/// and of the labels of the X axis; what is too wide for that is condensed. Where labels would touch, only
/// every second (third) one stands.
AxisLayout LayOutYAxis(const ChartView& view, const std::vector<AxisLabel>& xLabels,
                       const ChartSurface& surface);

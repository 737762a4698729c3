#pragma once

/// Draws a chart: axes, grid, titles and the curves of its lines.

#include "chart/layout/AxisLayout.h"
#include "chart/layout/ChartSurface.h"
#include "chart/layout/ChartView.h"

#include <span>
#include <string>
#include <vector>

/// The user scale of a chart: the plot area is 0 to 100 in both directions, and the margins hold the labels.
inline constexpr UserScale chartScale = {-21, 107, 126, -122};
/// Extent of the chart surface of a window, in device-independent pixels: 5600 by 3650 twips.
inline constexpr double chartSurfaceWidth = 5600 / 15.0;
inline constexpr double chartSurfaceHeight = 3650 / 15.0;

/// The range that covers the default limits of all lines of the chart; all zeros for a chart without lines.
/// Lines of other charts are passed over, here and below: any part of the store will do.
AxisRange DefaultRange(const ChartKey& chart, std::span<const ChartRecord> lines);

/// Axes that are laid out in a user scale whose plot area is 0 to 100, in the order in which they are drawn.
struct ChartAxes
{
    struct Line
    {
        /// Upright lines have their position on the X axis, level ones on the Y axis.
        bool Upright;
        GridLine Grid;
    };
    struct Text
    {
        /// By its upper left corner; one that reads upwards by its left edge and its middle.
        AxisLabel Label;
        bool Upwards = false;
    };
    std::vector<Line> Lines;
    std::vector<Text> Texts;
};

/// The note that a chart bears above its plot, or the empty text.
std::string NoteOf(const ChartView& view);

/// Draws lines, the frame of the plot, and texts.
void DrawAxes(const ChartAxes& axes, ChartSurface& surface);

/// Grid, tick labels, frame, axis titles and note. On a printer page the unit of Y stands above the plot
/// instead of a title along the left edge.
///
/// Throws RunTimeError 5 for an axis name without a unit.
void DrawAxes(const ChartView& view, ChartSurface& surface);

/// Writes the plot positions of all 200 points of each of the chart's lines into `XPos` and `YPos`, of points
/// outside the range as well.
void PlaceCurves(const ChartView& view, std::span<ChartRecord> lines);

/// How the curve at a position 0 to 5 of its chart looks.
struct CurveLook
{
    ::Color Color;
    int Dashes;
};

/// Each curve has its own colour and is a whole line; on a monochrome printer all have the colour of button
/// texts, and each its own dashes.
CurveLook LookOfCurve(const ChartSurface& surface, int position);
CurveLook LookOfCurve(SurfaceKind kind, const Color& buttonText, int position);

/// The curves of the chart's lines, in store order, from their placed points. A segment with an end outside
/// the range is left out whole.
void DrawCurves(const ChartView& view, std::span<const ChartRecord> lines, ChartSurface& surface);

#pragma once

/// Where plot, labels and titles of a chart stand that fits the room it has.

#include "chart/layout/ChartDrawing.h"
#include "chart/layout/SheetSurface.h"
#include "chart/layout/TextRuler.h"

/// Axes that are laid out for a room, and the user scale that they are drawn in.
struct FittingLayout
{
    /// The plot area in device-independent pixels from the room's upper left corner.
    Box Plot;
    UserScale Scale;
    ChartAxes Axes;
};

/// Radius of the badge that bears a line's number, in text sizes.
inline constexpr double badgeRadius = 0.62;

/// Lays a chart out for a room in device-independent pixels. Margins are as wide as the texts need; on the
/// right there is room for badges, above the plot for the tags of cursors and the chart's note.
FittingLayout LayOutFitting(const ChartView& view, double width, double height, const TextRuler& ruler);

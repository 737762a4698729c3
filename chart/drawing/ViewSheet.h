#pragma once

/// The picture of a chart view: its title, the chart, and the table of its lines.

#include "chart/drawing/FittingChart.h"
#include "chart/drawing/LegendTable.h"

/// What a picture shows.
struct ViewSheet
{
    QString Title;
    ChartView View;
    /// All of the chart, in the order of their numbers.
    std::span<const ViewedLine> Lines;
    CodeView Code = CodeView::Eia;
    ChartOverlay Overlay = {};
    LegendTable Legend = {};
    bool Dashed = false;
    /// Size of the texts beside the usual one for the extent.
    double TextScale = 1;
};

/// Size of a sheet's texts: the usual one for its extent times the user's wish, as far as title and table
/// leave the chart two fifths of the height.
double ViewSheetTextSize(const ViewSheet& sheet, const QSizeF& extent);

/// Draws the sheet from the painter's origin on, on white with even margins. The chart takes what room title
/// and table leave it.
///
/// @param extent in device-independent pixels
/// @param kind a monochrome printer has all lines black, each with its own dashes
void DrawViewSheet(const ViewSheet& sheet, const QSizeF& extent, QPainter& painter,
                   SurfaceKind kind = SurfaceKind::Screen);

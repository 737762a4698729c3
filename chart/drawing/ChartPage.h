#pragma once

/// The printed chart: the chart and, below it, a table of its lines and their conditions, on one portrait
/// page.

#include "chart/drawing/PageArea.h"
#include "chart/layout/ChartDrawing.h"

#include <functional>

/// What is printed.
struct ChartPage
{
    ChartView View;
    /// Any part of the store: lines of other charts are passed over. At most six are of the chart.
    std::span<const ChartRecord> Lines;
    /// Heads the page.
    QString Title;
    /// The part number on display of a `PartDataIndex`.
    std::function<QString(std::int32_t)> PartNumber;
};

/// Draws the page for a colour or a monochrome printer. It is laid out in twips from the upper left of the
/// printable area and shrinks to fit where that area is narrower than 11200 twips or lower than 10800: A4 and
/// Letter hold it in full size with margins of 5 mm. The rows of the table stand 300 twips apart from 8950 to
/// 10450, one for each of six lines.
///
/// Throws RunTimeError 5 for an axis, parameter or chart type that does not exist.
void DrawChartPage(const ChartPage& page, const PageArea& area, SurfaceKind kind, QPainter& painter);

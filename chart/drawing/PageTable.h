#pragma once

/// The table below a printed chart: its lines and their conditions.

#include "chart/layout/ChartSurface.h"
#include "chart/layout/ChartView.h"

#include <QPainter>
#include <QString>

#include <span>

// All positions are in twips.
inline constexpr double twipsPerPixel = 15;
inline constexpr double pageTableLeft = 200;
inline constexpr double pageTableRight = 11000;

/// Draws the table with a row for each line. Each of the nine headings stands whole on one line; a column
/// without entries is as narrow as its heading, and the others share the room that is left. Where there is
/// not room enough for all, every column but that of the lines is narrower by the same factor, and its texts
/// are fitted.
///
/// Throws RunTimeError 5 for an axis, parameter or chart type that does not exist.
///
/// @param lines the lines of the chart, at most six
/// @param partNums their part numbers
void DrawPageTable(const ChartView& view, std::span<const ChartRecord> lines,
                   std::span<const QString> partNums, SurfaceKind kind, QPainter& painter);

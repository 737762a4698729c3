#pragma once

/// A chart with its panes on one picture, as the chart window shows it.

#include "chart/drawing/ChartDrawing.h"

#include <QRectF>

#include <array>

class QPainter;

/// Lines that a chart may hold, and panes beside it.
inline constexpr int maximumLines = 6;

/// Extent of the sheet and the places of its parts, in device-independent pixels.
inline constexpr QSizeF sheetSize = {725, 248};
/// Place of the chart surface on the sheet.
inline constexpr QRectF sheetChart = {0, 4, chartSurfaceWidth, chartSurfaceHeight};
/// Colour of the sheet behind the panes.
inline constexpr QColor sheetColor = QColor(240, 240, 240);

/// Draws chart and panes with the sheet's upper left corner at the painter's origin. The points of the lines
/// must be placed (`PlaceCurves`).
///
/// @param partNums part numbers of the chart's lines in store order
void DrawChartSheet(const ChartView& view, std::span<const ChartRecord> lines,
                    std::span<const QString> partNums, QPainter& painter);

#pragma once

/// A chart with its panes on one picture, as the chart window shows it.

#include "chart/drawing/QtColors.h"
#include "chart/layout/SheetLayout.h"

#include <QSizeF>
#include <QString>

class QPainter;

/// Extent of the sheet in device-independent pixels.
inline constexpr QSizeF sheetSize = {sheetWidth, sheetHeight};

/// Draws chart and panes with the sheet's upper left corner at the painter's origin. The points of the lines
/// must be placed (`PlaceCurves`).
///
/// @param partNums part numbers of the chart's lines in store order
void DrawChartSheet(const ChartView& view, std::span<const ChartRecord> lines,
                    std::span<const QString> partNums, QPainter& painter);

#pragma once

/// The picture of a chart that is copied: the sheet under the chart's title.

#include "chart/layout/ChartView.h"

#include <QPainter>
#include <QSizeF>

#include <span>
#include <string>

/// Extent of the picture in device-independent pixels.
QSizeF TitledSheetSize();

/// Draws chart, panes and title from the painter's origin on, with an even margin all around. The painter
/// keeps font, pen and render hints.
///
/// @param lines any part of the store; the chart's points must be placed (`PlaceCurves`)
/// @param partNums part numbers of the chart's lines in store order
void DrawTitledSheet(const ChartView& view, std::span<const ChartRecord> lines,
                     std::span<const std::string> partNums, QPainter& painter);

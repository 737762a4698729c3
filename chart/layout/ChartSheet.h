#pragma once

/// A chart with its panes on one sheet, as the chart window shows it.

#include "chart/layout/ChartView.h"
#include "chart/layout/SheetSurface.h"

#include <span>
#include <string>

/// Extent of the sheet in device-independent pixels.
inline constexpr double sheetWidth = 725;
inline constexpr double sheetHeight = 248;
/// What of it is drawn on: the chart and its panes, without the sheet's margins.
inline constexpr Box sheetContents = {0, 1, 711, 247};
/// Colour of the sheet behind the panes.
inline constexpr Color sheetColor = {240, 240, 240};

/// Draws chart and panes. Lines of other charts are passed over; at most six are of the chart, and their
/// points must be placed (`PlaceCurves`).
///
/// @param partNums part numbers of the chart's lines in store order
void DrawChartSheet(const ChartView& view, std::span<const ChartRecord> lines,
                    std::span<const std::string> partNums, SheetSurface& sheet);

#pragma once

/// The picture of a fit: its charts side by side, measured points as crosses over the curves, and below each
/// chart how far the points are off.

#include "chart/layout/SheetSurface.h"
#include "ownparts/FitCharts.h"

/// Extent of the sheet of so many charts in device-independent pixels.
double FitSheetWidth(std::size_t charts);
inline constexpr double FitSheetHeight = 420;

/// Draws the sheet under the part's name; the curves' points are placed by this. The strips below go from -5
/// to 5 %, or further where a point does.
void DrawFitSheet(const FittedPart& fitted, std::vector<FitChart> charts, SheetSurface& sheet);

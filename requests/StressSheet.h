#pragma once

/// The picture of a current and of what heats: the current over the record and one period of it, and below,
/// the share of the rise over frequency.

#include "chart/layout/SheetSurface.h"
#include "requests/StressReport.h"

#include <span>

/// Extent of the sheet of so many reports, one below the other, in device-independent pixels.
inline constexpr double StressSheetWidth = 800;
double StressSheetHeight(std::size_t reports);

/// Draws the sheet. The stretch that counts is shaded, 10 kHz and 1 MHz are marked, and what lies outside
/// them is hatched. A converter has no record: its period takes the whole width.
void DrawStressSheet(std::span<const StressReport> reports, CodeView code, const CurveSettings& settings,
                     SheetSurface& sheet);

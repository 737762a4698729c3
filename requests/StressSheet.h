#pragma once

/// The picture of a current and of what heats: the current over the record and one period of it, and below,
/// the share of the rise over frequency.

#include "chart/layout/SheetSurface.h"
#include "requests/StressReport.h"
#include "requests/StressShares.h"

#include <span>
#include <string>

/// What a picture shows of a report, which must outlive it.
struct StressPicture
{
    std::string Title;
    const CurrentLoad& Load;
    StressShares Shares;
};

StressPicture StressPictureOf(const StressReport& report, CodeView code, const CurveSettings& settings);

/// Draws the picture, on white. The stretch that counts is shaded, 10 kHz and 1 MHz are marked, and what lies
/// outside them is hatched. A converter has no record: its period takes the whole width.
///
/// @param place at least 360 by 220 device-independent pixels; texts are as large in a larger one
void DrawStressPicture(const StressPicture& picture, const Box& place, SheetSurface& sheet);

/// Extent of the sheet of so many reports, one below the other, in device-independent pixels.
inline constexpr double StressSheetWidth = 800;
double StressSheetHeight(std::size_t reports);

/// Draws the pictures of all reports.
void DrawStressSheet(std::span<const StressReport> reports, CodeView code, const CurveSettings& settings,
                     SheetSurface& sheet);

#pragma once

/// A chart with its panes as a picture in a file format.

#include "chart/layout/ChartView.h"

#include <QByteArray>
#include <QSizeF>

#include <string>
#include <string_view>
#include <vector>

/// How the picture is made.
struct PictureSettings
{
    /// Extent in device-independent pixels of 1/96 inch; the sheet fills it as far as its proportions allow.
    QSizeF Size;
    /// Pixels of a bitmap, and units of a drawing, to each device-independent pixel.
    double Scale = 1;
};

/// The chart in the bytes of a "png", "svg" or "pdf" file. The lines' points are placed by this.
///
/// Needs a QGuiApplication. Throws Failure for a picture that there is no memory for.
QByteArray SheetPicture(const ChartView& view, std::vector<ChartRecord>& lines,
                        const std::vector<std::string>& partNums, const PictureSettings& settings,
                        std::string_view format);

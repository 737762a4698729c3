#pragma once

/// A chart with its panes as a picture in a file format.

#include "chart/drawing/PictureFile.h"
#include "chart/layout/ChartView.h"
#include "requests/OutputFormat.h"

#include <span>
#include <vector>

/// A format of pictures, as the bytes of a file.
struct PictureFormat : OutputFormat<QByteArray (*)(const Picture& picture)>
{
    /// Pixels of a bitmap, and units of a drawing, to each device-independent pixel where none are asked for.
    double Scale;
};

/// All formats: PNG, SVG and PDF.
std::span<const PictureFormat> PictureFormats();

/// The chart in a format. The lines' points are placed by this.
///
/// Needs a QGuiApplication. Throws Failure for a picture that there is no memory for.
///
/// @param extent pixels of a bitmap, units of a drawing; the sheet fills it as far as its proportions allow
QByteArray SheetPicture(const ChartView& view, std::vector<ChartRecord>& lines,
                        const std::vector<std::string>& partNums, QSizeF extent, const PictureFormat& format);

#include "cli/SheetPicture.h"

#include "chart/drawing/PainterSheet.h"
#include "chart/drawing/QtColors.h"
#include "chart/layout/ChartDrawing.h"
#include "cli/Command.h"

#include <algorithm>
#include <array>

/// The clipboard's bitmap is as fine.
static constexpr double bitmapScale = 2;

std::span<const PictureFormat> PictureFormats()
{
    const auto format = [](const PictureType& type, double scale) {
        return PictureFormat{{{type.Name, ""}, type.Write}, scale};
    };
    const auto types = PictureTypes();
    static const std::array formats = {format(types[0], bitmapScale), format(types[1], 1),
                                       format(types[2], 1)};
    return formats;
}

/// Draws the sheet as large as it fits, in the middle.
static void DrawFitted(const ChartView& view, const std::vector<ChartRecord>& lines,
                       const std::vector<std::string>& partNums, QSizeF extent, QPainter& painter)
{
    const double factor = std::min(extent.width() / sheetSize.width(), extent.height() / sheetSize.height());
    const QSizeF drawn = sheetSize * factor;
    painter.fillRect(QRectF(QPointF(0, 0), extent), QtColor(sheetColor));
    painter.translate((extent.width() - drawn.width()) / 2, (extent.height() - drawn.height()) / 2);
    painter.scale(factor, factor);
    PainterSheet sheet(painter);
    DrawChartSheet(view, lines, partNums, sheet);
}

QByteArray SheetPicture(const ChartView& view, std::vector<ChartRecord>& lines,
                        const std::vector<std::string>& partNums, QSizeF extent, const PictureFormat& format)
{
    PlaceCurves(view, lines);
    const auto bytes = format.Write(
        {.Extent = extent,
         .Title = QString::fromStdString(view.Chart.XAxisName + ", " + view.Chart.YAxisName),
         .Draw = [&](QPainter& painter) { DrawFitted(view, lines, partNums, extent, painter); }});
    if (bytes.isEmpty())
    {
        throw Failure("there is no memory for a picture of this size");
    }
    return bytes;
}

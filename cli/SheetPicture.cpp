#include "cli/SheetPicture.h"

#include "chart/drawing/PainterSheet.h"
#include "chart/drawing/QtColors.h"
#include "chart/layout/ChartDrawing.h"
#include "cli/Command.h"

#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <algorithm>
#include <array>

/// The clipboard's bitmap is as fine.
static constexpr double bitmapScale = 2;
/// Device-independent pixels to the inch, and points of a page.
static constexpr int pixelsPerInch = 96;
static constexpr double pointsPerPixel = 72.0 / pixelsPerInch;

/// What every format draws.
struct Picture
{
    const ChartView& View;
    const std::vector<ChartRecord>& Lines;
    const std::vector<std::string>& PartNums;
    QSizeF Extent;

    /// Draws the sheet as large as it fits, in the middle.
    void Draw(QPainter& painter) const
    {
        const double factor =
            std::min(Extent.width() / sheetSize.width(), Extent.height() / sheetSize.height());
        const QSizeF drawn = sheetSize * factor;
        painter.fillRect(QRectF(QPointF(0, 0), Extent), QtColor(sheetColor));
        painter.translate((Extent.width() - drawn.width()) / 2, (Extent.height() - drawn.height()) / 2);
        painter.scale(factor, factor);
        PainterSheet sheet(painter);
        DrawChartSheet(View, Lines, PartNums, sheet);
    }
};

static QByteArray Png(const Picture& picture)
{
    QImage image(picture.Extent.toSize(), QImage::Format_RGB32);
    if (image.isNull())
    {
        throw Failure("there is no memory for a picture of this size");
    }
    image.setDotsPerMeterX(static_cast<int>(pixelsPerInch / 0.0254));
    image.setDotsPerMeterY(static_cast<int>(pixelsPerInch / 0.0254));
    {
        QPainter painter(&image);
        picture.Draw(painter);
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

static QByteArray Svg(const Picture& picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(pixelsPerInch);
    generator.setSize(picture.Extent.toSize());
    generator.setViewBox(QRectF(QPointF(0, 0), picture.Extent));
    generator.setTitle(
        QString::fromStdString(picture.View.Chart.XAxisName + ", " + picture.View.Chart.YAxisName));
    QPainter painter(&generator);
    picture.Draw(painter);
    painter.end();
    return bytes;
}

static QByteArray Pdf(const Picture& picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(pixelsPerInch);
    writer.setPageSize(
        QPageSize(picture.Extent * pointsPerPixel, QPageSize::Point, {}, QPageSize::ExactMatch));
    writer.setPageMargins({});
    QPainter painter(&writer);
    picture.Draw(painter);
    painter.end();
    return bytes;
}

std::span<const PictureFormat> PictureFormats()
{
    static constexpr std::array<PictureFormat, 3> formats = {{
        {{{"png", ""}, Png}, bitmapScale},
        {{{"svg", ""}, Svg}, 1},
        {{{"pdf", ""}, Pdf}, 1},
    }};
    return formats;
}

QByteArray SheetPicture(const ChartView& view, std::vector<ChartRecord>& lines,
                        const std::vector<std::string>& partNums, QSizeF extent, const PictureFormat& format)
{
    PlaceCurves(view, lines);
    return format.Write({.View = view, .Lines = lines, .PartNums = partNums, .Extent = extent});
}

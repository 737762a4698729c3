#include "chart/drawing/PictureFile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QPageSize>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <algorithm>
#include <array>

/// Device-independent pixels to the inch, and points of a page.
static constexpr int pixelsPerInch = 96;
static constexpr double pointsPerPixel = 72.0 / pixelsPerInch;

static QByteArray Png(const Picture& picture)
{
    QImage image(picture.Extent.toSize(), QImage::Format_RGB32);
    if (image.isNull())
    {
        return {};
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
    // The generator writes it as it is.
    generator.setTitle(picture.Title.toHtmlEscaped());
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
    writer.setTitle(picture.Title);
    writer.setPageSize(
        QPageSize(picture.Extent * pointsPerPixel, QPageSize::Point, {}, QPageSize::ExactMatch));
    writer.setPageMargins({});
    QPainter painter(&writer);
    picture.Draw(painter);
    painter.end();
    return bytes;
}

std::span<const PictureType, 3> PictureTypes()
{
    static constexpr std::array<PictureType, 3> types = {{{"png", Png}, {"svg", Svg}, {"pdf", Pdf}}};
    return types;
}

const PictureType* PictureTypeOf(const QString& fileName)
{
    const auto ending = QFileInfo(fileName).suffix().toLower().toStdString();
    const auto types = PictureTypes();
    const auto type = std::ranges::find(types, ending, &PictureType::Name);
    return type != types.end() ? &*type : nullptr;
}

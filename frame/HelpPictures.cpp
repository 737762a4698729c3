#include "frame/HelpPictures.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QPaintDevice>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QTextDocument>
#include <QTextFrame>
#include <QUrl>

#include <algorithm>

/// The picture as the book names it; a null one where it is not to be had.
static QPixmap PictureOf(const QTextDocument& document, const QTextImageFormat& format)
{
    return document.resource(QTextDocument::ImageResource, QUrl(format.name())).value<QPixmap>();
}

/// Pixels of the device to one of the screen, which a book counts in: paper has more to the inch.
static qreal DeviceScale(const QTextDocument& document)
{
    const auto* const device = document.documentLayout()->paintDevice();
    const auto* const screen = QGuiApplication::primaryScreen();
    return device == nullptr || screen == nullptr ? 1 : device->logicalDpiY() / screen->logicalDotsPerInchY();
}

/// Room between the margins of the page, which are counted in pixels of the screen.
static qreal PageWidthOf(const QTextDocument& document)
{
    const auto page = document.rootFrame()->frameFormat();
    return document.textWidth() - (page.leftMargin() + page.rightMargin()) * DeviceScale(document);
}

static QSizeF SizeInBook(const QTextDocument& document, const QTextImageFormat& image)
{
    if (image.width() > 0 && image.height() > 0)
    {
        return {image.width(), image.height()};
    }
    const QPixmap picture = PictureOf(document, image);
    return picture.isNull() ? QSizeF(16, 16) : picture.deviceIndependentSize();
}

HelpPictures::HelpPictures(qreal pointSize, QObject* parent)
    : QObject(parent)
    , usualPointSize(pointSize)
{
}

QSizeF HelpPictures::intrinsicSize(QTextDocument* document, int /*place*/, const QTextFormat& format)
{
    const QSizeF usual = SizeInBook(*document, format.toImageFormat()) * DeviceScale(*document);
    const qreal growth = std::max(1.0, document->defaultFont().pointSizeF() / usualPointSize);
    const qreal room = PageWidthOf(*document);
    return room > 0 ? usual * std::min(growth, room / usual.width()) : usual;
}

void HelpPictures::drawObject(QPainter* painter, const QRectF& rect, QTextDocument* document, int /*place*/,
                              const QTextFormat& format)
{
    const QPixmap picture = PictureOf(*document, format.toImageFormat());
    painter->save();
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawPixmap(rect, picture, picture.rect());
    painter->restore();
}

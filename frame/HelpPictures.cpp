#include "frame/HelpPictures.h"

#include <QPainter>
#include <QPixmap>
#include <QTextDocument>
#include <QUrl>

/// The picture as the book names it; a null one where it is not to be had.
static QPixmap PictureOf(const QTextDocument& document, const QTextImageFormat& format)
{
    return document.resource(QTextDocument::ImageResource, QUrl(format.name())).value<QPixmap>();
}

QSizeF HelpPictures::intrinsicSize(QTextDocument* document, int /*place*/, const QTextFormat& format)
{
    const QTextImageFormat image = format.toImageFormat();
    if (image.width() > 0 && image.height() > 0)
    {
        return {image.width(), image.height()};
    }
    const QPixmap picture = PictureOf(*document, image);
    return picture.isNull() ? QSizeF(16, 16) : picture.deviceIndependentSize();
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

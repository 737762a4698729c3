#pragma once

/// How the help viewer shows the pictures of a book.

#include <QObject>
#include <QTextObjectInterface>

/// Draws pictures smooth at the size that the book gives them, and as large as they are where it gives none;
/// larger with larger text, but no wider than the page. A picture has as many pixels as it has, however many
/// of them its place takes on this screen.
class HelpPictures : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    /// @param pointSize of the text beside which pictures have the size that the book gives them
    HelpPictures(qreal pointSize, QObject* parent);

    QSizeF intrinsicSize(QTextDocument* document, int place, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& rect, QTextDocument* document, int place,
                    const QTextFormat& format) override;

private:
    qreal usualPointSize;
};

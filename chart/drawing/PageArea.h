#pragma once

/// The printable part of a page, and how texts are put on it.

#include <QPainter>
#include <QRectF>
#include <QSizeF>
#include <QString>

/// The part of a page that can be printed on.
struct PageArea
{
    /// In painter units.
    QRectF Printable;
    /// Painter units per inch of paper.
    double Resolution;
};

/// Makes twips, 1440 to the inch, the painter's units for its lifetime, with their origin at the upper left
/// of the printable area.
class TwipsScope
{
public:
    TwipsScope(QPainter& pagePainter, const PageArea& area);
    ~TwipsScope() { painter.restore(); }
    TwipsScope(const TwipsScope&) = delete;
    TwipsScope& operator=(const TwipsScope&) = delete;

    /// Extent of the printable area in twips.
    QSizeF Extent() const { return extent; }

private:
    QPainter& painter;
    QSizeF extent;
};

/// Draws a line of text that begins at the left end of its baseline, squeezed where it is wider than the room
/// for it.
void DrawFittedText(QPainter& painter, const QPointF& baseline, const QString& text, double room);

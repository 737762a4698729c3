#pragma once

/// The printable part of a page.

#include <QPainter>
#include <QRectF>
#include <QSizeF>

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

#include "chart/drawing/PageArea.h"

TwipsScope::TwipsScope(QPainter& pagePainter, const PageArea& area)
    : painter(pagePainter)
    , extent(area.Printable.size() * 1440 / area.Resolution)
{
    painter.save();
    painter.translate(area.Printable.topLeft());
    painter.scale(area.Resolution / 1440, area.Resolution / 1440);
}

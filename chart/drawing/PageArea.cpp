#include "chart/drawing/PageArea.h"

#include <QFontMetricsF>

TwipsScope::TwipsScope(QPainter& pagePainter, const PageArea& area)
    : painter(pagePainter)
    , extent(area.Printable.size() * 1440 / area.Resolution)
{
    painter.save();
    painter.translate(area.Printable.topLeft());
    painter.scale(area.Resolution / 1440, area.Resolution / 1440);
}

void DrawFittedText(QPainter& painter, const QPointF& baseline, const QString& text, double room)
{
    const auto width = QFontMetricsF(painter.font(), painter.device()).horizontalAdvance(text);
    painter.save();
    painter.translate(baseline);
    if (width > room)
    {
        painter.scale(room / width, 1);
    }
    painter.drawText(QPointF(0, 0), text);
    painter.restore();
}

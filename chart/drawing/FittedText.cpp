#include "chart/drawing/FittedText.h"

#include <algorithm>

/// How far letters are condensed, and how far they are set smaller then, before a text is cut.
static constexpr double leastCondensed = 0.75;
static constexpr double leastSize = 0.6;

FittedText::FittedText(const QString& text, double room, const QFontMetricsF& metrics)
    : shown(text)
{
    const double width = metrics.horizontalAdvance(text);
    if (width <= room)
    {
        return;
    }
    const double wanted = room / width;
    upwards = std::clamp(wanted / leastCondensed, leastSize, 1.0);
    across = std::max(wanted, leastCondensed * leastSize);
    cut = across > wanted;
    if (cut)
    {
        shown = metrics.elidedText(text, Qt::ElideRight, room / across);
    }
}

void FittedText::Draw(QPainter& painter, const QPointF& baseline) const
{
    if (across == 1)
    {
        painter.drawText(baseline, shown);
        return;
    }
    const QTransform former = painter.transform();
    painter.translate(baseline);
    painter.scale(across, upwards);
    painter.drawText(QPointF(0, 0), shown);
    painter.setTransform(former);
}

#include "chart/FittedLabel.h"

#include <QHelpEvent>
#include <QToolTip>

const FittedText& FittedLabel::Fitted()
{
    const int room = contentsRect().width();
    if (fittedRoom != room || fittedText != text() || fittedFont != font())
    {
        fitted = FittedText(text(), room, QFontMetricsF(font(), this));
        fittedRoom = room;
        fittedText = text();
        fittedFont = font();
    }
    return fitted;
}

void FittedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect place = contentsRect();
    Fitted().Draw(painter, QPointF(place.left(), place.top() + fontMetrics().ascent()));
}

bool FittedLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip)
    {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           Fitted().IsCut() ? text() : QString(), this);
        return true;
    }
    return QLabel::event(event);
}

#include "chart/ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

bool ElidedLabel::IsCut() const
{
    return fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    painter.drawText(contentsRect(), static_cast<int>(Qt::AlignLeft | Qt::AlignTop), shown);
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip)
    {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), IsCut() ? text() : QString(), this);
        return true;
    }
    return QLabel::event(event);
}

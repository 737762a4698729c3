#include "app/TitledFrame.h"

#include <QPainter>

/// From the widget's top to the line, on which the caption stands.
static constexpr int LineTop = 7;
static constexpr int CaptionLeft = 7;

TitledFrame::TitledFrame(QWidget* parent)
    : QGroupBox(parent)
{
}

void TitledFrame::resizeEvent(QResizeEvent* event)
{
    QGroupBox::resizeEvent(event);
    setContentsMargins(1, LineTop + 1, 1, 1);
}

void TitledFrame::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, LineTop + 0.5, -0.5, -0.5), 2, 2);

    const QRect caption(CaptionLeft, 0, fontMetrics().horizontalAdvance(title()), 2 * LineTop);
    painter.fillRect(caption.adjusted(-2, 0, 2, 0), palette().window());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(caption, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, title());
}

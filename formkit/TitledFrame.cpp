#include "formkit/TitledFrame.h"

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

/// Four sides that leave the corners out, which rounds them. They are filled: lines, let alone a rounded
/// rectangle, take many times as long, and every chart brings six frames.
static void FillOutline(QPainter& painter, const QRect& outer, const QColor& color)
{
    const QSize across(outer.width() - 2, 1);
    const QSize down(1, outer.height() - 2);
    painter.fillRect(QRect(QPoint(outer.left() + 1, outer.top()), across), color);
    painter.fillRect(QRect(QPoint(outer.left() + 1, outer.bottom()), across), color);
    painter.fillRect(QRect(QPoint(outer.left(), outer.top() + 1), down), color);
    painter.fillRect(QRect(QPoint(outer.right(), outer.top() + 1), down), color);
}

void TitledFrame::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    FillOutline(painter, rect().adjusted(0, LineTop, 0, 0), palette().color(QPalette::Mid));

    const QRect caption(CaptionLeft, 0, fontMetrics().horizontalAdvance(title()), 2 * LineTop);
    painter.fillRect(caption.adjusted(-2, 0, 2, 0), palette().window());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(caption, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, title());
}

#include "formkit/TitledFrame.h"

#include "formkit/Edges.h"

#include <QEvent>
#include <QPainter>
#include <QRadioButton>

#include <algorithm>

/// From the widget's top to the line, on which the caption stands.
static constexpr int LineTop = 7;
static constexpr int CaptionLeft = 7;

TitledFrame::TitledFrame(QWidget* parent)
    : QGroupBox(parent)
{
}

QRadioButton* TitledFrame::ButtonThatIsOn() const
{
    const auto buttons = findChildren<QRadioButton*>();
    const auto on = std::ranges::find_if(buttons, &QRadioButton::isChecked);
    return on != buttons.end() ? *on : nullptr;
}

/// Left to itself a frame gives the focus to where it was last.
bool TitledFrame::event(QEvent* event)
{
    QRadioButton* const on = event->type() == QEvent::Shortcut ? ButtonThatIsOn() : nullptr;
    if (on == nullptr)
    {
        return QGroupBox::event(event);
    }
    on->setFocus(Qt::ShortcutFocusReason);
    return true;
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
    FillOutline(painter, rect().adjusted(0, LineTop, 0, 0), EdgeColor(palette()));

    const int width = fontMetrics().size(Qt::TextShowMnemonic, title()).width();
    const QRect caption(CaptionLeft, 0, width, 2 * LineTop);
    painter.fillRect(caption.adjusted(-2, 0, 2, 0), palette().window());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(caption, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, title());
}

#include "selection/FormScroller.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QResizeEvent>

#include <algorithm>

/// A few rows of the form.
static constexpr int LeastHeight = 80;

FormScroller::FormScroller(QWidget* parent)
    : QScrollArea(parent)
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, QWidget* now)
            {
                if (now != nullptr && isAncestorOf(now))
                {
                    ensureWidgetVisible(now);
                }
            });
}

/// Captions wrap, so the height follows from the width that is there without a scroll bar.
int FormScroller::WholeHeight() const
{
    const QLayout* fields = widget() != nullptr ? widget()->layout() : nullptr;
    return fields != nullptr
               ? std::max(fields->totalHeightForWidth(width()), fields->totalMinimumSize().height())
               : 0;
}

QSize FormScroller::sizeHint() const
{
    return {width(), WholeHeight()};
}

/// Beside a scroll bar captions take more lines, and so would keep it for good.
void FormScroller::ScrollWhereNeeded()
{
    setVerticalScrollBarPolicy(WholeHeight() > height() ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
}

QSize FormScroller::minimumSizeHint() const
{
    return {0, LeastHeight};
}

bool FormScroller::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
    {
        updateGeometry();
        ScrollWhereNeeded();
    }
    return QScrollArea::eventFilter(watched, event);
}

void FormScroller::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    ScrollWhereNeeded();
    if (event->size().width() != event->oldSize().width())
    {
        updateGeometry();
    }
}

#include "frame/EntryScroller.h"

#include <QResizeEvent>
#include <QScrollBar>

QSize EntryScroller::sizeHint() const
{
    if (widget() == nullptr)
    {
        return QScrollArea::sizeHint();
    }
    // The area itself remembers the first hint of its contents, whatever is shown or hidden since.
    QSize hint = widget()->sizeHint() + QSize(2, 2) * frameWidth();
    if (widget()->minimumSizeHint().width() > width())
    {
        hint.rheight() += horizontalScrollBar()->sizeHint().height();
    }
    return hint;
}

void EntryScroller::ShowWhole(const QWidget& entry)
{
    for (const QPoint corner : {entry.rect().bottomRight(), entry.rect().topLeft()})
    {
        const QPoint place = entry.mapTo(widget(), corner);
        ensureVisible(place.x(), place.y(), 1, 1);
    }
}

bool EntryScroller::event(QEvent* event)
{
    const bool isKnown = QScrollArea::event(event);
    if (event->type() == QEvent::LayoutRequest)
    {
        updateGeometry();
    }
    return isKnown;
}

void EntryScroller::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
    {
        updateGeometry();
    }
}

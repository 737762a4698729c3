#include "frame/EntryScroller.h"

#include <QResizeEvent>
#include <QScrollBar>

QSize EntryScroller::sizeHint() const
{
    QSize hint = QScrollArea::sizeHint();
    if (widget() != nullptr && widget()->minimumSizeHint().width() > width())
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

void EntryScroller::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
    {
        updateGeometry();
    }
}

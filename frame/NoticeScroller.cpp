#include "frame/NoticeScroller.h"

#include <QEvent>
#include <QResizeEvent>
#include <QScrollBar>

#include <algorithm>

static constexpr int MostLines = 5;

NoticeScroller::NoticeScroller(QWidget* parent)
    : QScrollArea(parent)
{
    setFocusPolicy(Qt::NoFocus);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this,
            [this](int /*from*/, int to) { setFocusPolicy(to > 0 ? Qt::StrongFocus : Qt::NoFocus); });
}

QSize NoticeScroller::sizeHint() const
{
    const int lines = widget() != nullptr ? widget()->heightForWidth(viewport()->width()) : 0;
    return {0, std::min(lines, MostLines * fontMetrics().lineSpacing())};
}

/// Other lines ask for another height.
bool NoticeScroller::event(QEvent* event)
{
    const bool isKnown = QScrollArea::event(event);
    if (event->type() == QEvent::LayoutRequest)
    {
        updateGeometry();
    }
    return isKnown;
}

void NoticeScroller::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
    {
        updateGeometry();
    }
}

#include "frame/StartPlace.h"

#include "formkit/WindowFrame.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>

/// Room for the frame and title bar of most desktops.
static constexpr QMargins UsualFrame(8, 40, 8, 8);

QRect PlaceInside(const QRect& free, const QSize& wanted, const QMargins& frame)
{
    const QRect inside = free.marginsRemoved(frame);
    const QSize size = wanted.boundedTo(inside.size());
    return {QPoint(inside.x() + (inside.width() - size.width()) / 2,
                   inside.y() + (inside.height() - size.height()) / 2),
            size};
}

StartPlace::StartPlace(QWidget* placedWindow, const QSize& wantedSize)
    : QObject(placedWindow)
    , window(placedWindow)
    , wanted(wantedSize)
{
    const QRect place = PlaceInside(window->screen()->availableGeometry(), wanted, UsualFrame);
    placed = place.size();
    window->setGeometry(place);
    window->installEventFilter(this);
}

/// A frame that is larger than usual still stands inside. A size that was given since stays.
void StartPlace::Correct()
{
    const QRect free = window->screen()->availableGeometry();
    if (window->size() == placed && !free.contains(window->frameGeometry()))
    {
        window->setGeometry(PlaceInside(free, wanted, FrameOf(*window)));
    }
    deleteLater();
}

bool StartPlace::eventFilter(QObject* watched, QEvent* event)
{
    // What is painted has its frame.
    if (event->type() == QEvent::Paint)
    {
        window->removeEventFilter(this);
        QMetaObject::invokeMethod(this, &StartPlace::Correct, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

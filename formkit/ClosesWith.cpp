#include "formkit/ClosesWith.h"

#include <QEvent>
#include <QWidget>

ClosesWith::ClosesWith(QWidget& closingWindow, QWidget& owner)
    : QObject(&closingWindow)
    , window(closingWindow)
{
    owner.installEventFilter(this);
    connect(&owner, &QObject::destroyed, this, [this] { delete &window; });
}

bool ClosesWith::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide && !event->spontaneous())
    {
        // The owner is closed, not just put away by the desktop.
        window.close();
    }
    return QObject::eventFilter(watched, event);
}

#include "selection/LastControl.h"

#include <QEvent>
#include <QMdiSubWindow>

LastControl::LastControl(QMdiSubWindow* watchedForm)
    : QObject(watchedForm)
{
    for (QWidget* control : watchedForm->findChildren<QWidget*>())
    {
        control->installEventFilter(this);
    }
    connect(watchedForm, &QMdiSubWindow::aboutToActivate, this, [this] { comingToFront = true; });
}

QWidget* LastControl::Control() const
{
    return !last.isNull() && last->isEnabled() && last->isVisible() ? last.data() : nullptr;
}

bool LastControl::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn && !comingToFront)
    {
        last = qobject_cast<QWidget*>(watched);
    }
    return QObject::eventFilter(watched, event);
}

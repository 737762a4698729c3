#include "frame/ChildArea.h"

#include <QEvent>

static bool IsOfKeys(const QEvent& event)
{
    return event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease;
}

bool ChildArea::eventFilter(QObject* watched, QEvent* event)
{
    const auto* widget = qobject_cast<const QWidget*>(watched);
    if (widget != nullptr && IsOfKeys(*event) && widget->window() != window())
    {
        return false;
    }
    return QMdiArea::eventFilter(watched, event);
}

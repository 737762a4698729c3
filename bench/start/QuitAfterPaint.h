#pragma once

/// Ends a process as soon as its first window is painted, so that its whole run is its start.

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

/// Watches all windows; after the first paint of a top-level one the process is over.
class QuitAfterPaint : public QObject
{
public:
    explicit QuitAfterPaint(QApplication& application)
        : QObject(&application)
    {
        application.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* window = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Paint && window != nullptr && window->isWindow())
        {
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        }
        return false;
    }
};

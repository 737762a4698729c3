#pragma once

/// A window of its own that goes when another one does.

#include <QObject>

class QWidget;

/// Closes a window together with its owner, and destroys it with it; putting the owner away for a while, as
/// the desktop does, leaves the window. It belongs to the window.
class ClosesWith : public QObject
{
    Q_OBJECT

public:
    ClosesWith(QWidget& closingWindow, QWidget& owner);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& window;
};

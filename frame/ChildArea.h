#pragma once

/// The child area of the main window.

#include <QMdiArea>

/// Holds the selection form and the chart windows. Its keys work in its own window alone: behind a message, a
/// dialog or a list that has been opened, no other child comes to the front.
class ChildArea : public QMdiArea
{
    Q_OBJECT

public:
    using QMdiArea::QMdiArea;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

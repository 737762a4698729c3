#pragma once

/// The help key of all windows.

#include <QObject>

class QWidget;

/// F1 opens the help at the page of the window, the frame or the dialog in front, and at the line that
/// explains it for a message. Listens as long as it lives; help belongs to `owner` (see `ShowHelpContents`).
class HelpKey : public QObject
{
    Q_OBJECT

public:
    explicit HelpKey(QWidget& helpOwner);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& owner;
};

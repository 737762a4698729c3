#pragma once

/// About box, printing notice and the program's icon.

#include <QObject>

class NoticesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AboutTellsTitleAndVersion();
    void AboutClosesByItsButton();
    void AboutCannotBeResized();
    void PrintingNoticeIsShownWhileItLives();
    void PrintingNoticeStaysOnEscape();
    void IconIsDrawnAtEverySize();
};

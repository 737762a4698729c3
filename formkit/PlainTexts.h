#pragma once

/// Texts that are shown as they are.

#include <QObject>

/// While it lives, no label, message box or tool tip takes its text for markup, those of the toolkit's own
/// dialogs included: a part number or file name in angle brackets is shown letter by letter, and nothing that
/// it names is loaded. A label that is set to rich text stays so.
class PlainTexts : public QObject
{
    Q_OBJECT

public:
    /// Needs the application.
    PlainTexts();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

#pragma once

/// What was set up before is what a printer dialog starts from.

#include <QObject>
#include <QPointer>

class QDialog;
class QPrintDialog;
class QPrinter;
struct PrinterChoices;

/// The toolkit's printer dialog starts from a printer of paper and that printer's own paper. While this
/// lives, the dialog starts from the file, the colours, the sides, the paper and the margins of these
/// choices.
class ChoicesKeeper : public QObject
{
public:
    /// All must outlive this object.
    ChoicesKeeper(QPrintDialog& printDialog, const PrinterChoices& choices);

    /// Gives the printer, once the dialog is accepted, what the toolkit forgets: the shades of grey that the
    /// dialog shows, and the paper of the choices, unless the user has chosen paper in the dialog, or the
    /// printer that is chosen now has no such paper.
    void GiveTo(QPrinter& printer) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void StartFromChoices() const;
    void ChoosePaper(QDialog* dialog);

    QPrintDialog& dialog;
    const PrinterChoices& former;
    /// The properties of the printer as they stand on the screen; the dialog discards them where they do not
    /// count.
    QPointer<QDialog> properties;
};

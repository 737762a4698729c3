#include "frame/AskForPrinter.h"

#include "frame/ChoicesKeeper.h"
#include "frame/PrinterChoices.h"
#include "partdata/RunTimeError.h"

#include <QDialogButtonBox>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QPushButton>

namespace PrinterFlag
{
static constexpr int PageRange = 2;
static constexpr int NoPageRange = 8;
static constexpr int PrintSetup = 64;
} // namespace PrinterFlag

/// A printer that was set up while the system had none only writes files; from now on it prints.
static void ChooseSystemPrinter(QPrinter& printer)
{
    if (printer.printerName().isEmpty() && printer.outputFileName().isEmpty())
    {
        const auto standard = QPrinterInfo::defaultPrinterName();
        printer.setPrinterName(standard.isEmpty() ? QPrinterInfo::availablePrinterNames().constFirst()
                                                  : standard);
    }
}

static bool RunDialog(QPrinter& printer, const PrinterLimits& first, std::int32_t flags, const QString& title,
                      QWidget* owner)
{
    ChooseSystemPrinter(printer);
    if (first.copies > 0)
    {
        printer.setCopyCount(first.copies);
    }
    if (first.fromPage > 0 && first.toPage >= first.fromPage)
    {
        printer.setFromTo(first.fromPage, first.toPage);
    }
    printer.setPrintRange((flags & PrinterFlag::PageRange) != 0 ? QPrinter::PageRange : QPrinter::AllPages);

    const bool setUp = (flags & PrinterFlag::PrintSetup) != 0;
    const auto choices = ChoicesOf(printer);
    QPrintDialog dialog(&printer, owner);
    const ChoicesKeeper keeper(dialog, choices);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, (flags & PrinterFlag::NoPageRange) == 0);
    if (first.max > 0 && first.max >= first.min)
    {
        dialog.setMinMax(first.min, first.max);
    }
    dialog.setWindowTitle(!title.isEmpty() ? title
                          : setUp          ? QStringLiteral("Print Setup")
                                           : QStringLiteral("Print"));
    const auto* const buttons = dialog.findChild<QDialogButtonBox*>();
    if (setUp && buttons != nullptr)
    {
        // Nothing is printed yet, so the button does not promise it.
        buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("OK"));
    }
    const bool accepted = dialog.exec() == QDialog::Accepted;
    if (accepted)
    {
        keeper.GiveTo(printer);
    }
    return accepted;
}

bool AskForPrinter(QPrinter& printer, const PrinterLimits& first, std::int32_t flags, const QString& title,
                   QWidget* owner)
{
    if (QPrinterInfo::availablePrinterNames().isEmpty())
    {
        throw RunTimeError(RunTimeErrorNumber::NoPrinter).At(DialogsPlace);
    }
    const auto before = ChoicesOf(printer);
    const bool accepted = RunDialog(printer, first, flags, title, owner);
    if (!accepted)
    {
        SetChoices(printer, before);
    }
    return accepted;
}

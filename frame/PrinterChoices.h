#pragma once

/// The printer dialog, and the choices that a user makes in it.

#include <QPageLayout>
#include <QPrinter>
#include <QString>

#include <cstdint>

class QWidget;

/// What a printer dialog can change on a printer.
struct PrinterChoices
{
    QPrinter::OutputFormat outputFormat;
    QString printerName;
    QString outputFileName;
    QPageLayout layout;
    int copies;
    bool collate;
    QPrinter::ColorMode colorMode;
    QPrinter::DuplexMode duplex;
    QPrinter::PageOrder pageOrder;
    QPrinter::PrintRange range;
    int fromPage;
    int toPage;
};

PrinterChoices ChoicesOf(const QPrinter& printer);
void SetChoices(QPrinter& printer, const PrinterChoices& choices);

/// What the dialog shows first; 0 keeps the printer's own value.
struct PrinterLimits
{
    std::int32_t copies;
    std::int32_t fromPage;
    std::int32_t toPage;
    std::int32_t min;
    std::int32_t max;
};

/// The source that errors of the common dialogs name.
inline constexpr const char* DialogsPlace = "COMDLG32.DLL";

/// Runs the dialog on `printer`; true for OK, and on Cancel the printer is as before. `flags`: 2 starts with
/// the page range, 8 offers no page range, 64 is print set-up.
///
/// Throws RunTimeError 65534 "There is no printer in this system."
bool AskForPrinter(QPrinter& printer, const PrinterLimits& first, std::int32_t flags, const QString& title,
                   QWidget* owner);

#pragma once

/// The choices that a user makes in a printer dialog.

#include <QPageLayout>
#include <QPrinter>
#include <QString>

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

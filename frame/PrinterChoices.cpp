#include "frame/PrinterChoices.h"

PrinterChoices ChoicesOf(const QPrinter& printer)
{
    return {.outputFormat = printer.outputFormat(),
            .printerName = printer.printerName(),
            .outputFileName = printer.outputFileName(),
            .layout = printer.pageLayout(),
            .copies = printer.copyCount(),
            .collate = printer.collateCopies(),
            .colorMode = printer.colorMode(),
            .duplex = printer.duplex(),
            .pageOrder = printer.pageOrder(),
            .range = printer.printRange(),
            .fromPage = printer.fromPage(),
            .toPage = printer.toPage()};
}

void SetChoices(QPrinter& printer, const PrinterChoices& choices)
{
    // A printer's name or a file's name decides the output format, and a printer's name the paper: so
    // these come first.
    if (!choices.printerName.isEmpty())
    {
        printer.setPrinterName(choices.printerName);
    }
    printer.setOutputFileName(choices.outputFileName);
    printer.setOutputFormat(choices.outputFormat);
    printer.setPageLayout(choices.layout);
    printer.setCopyCount(choices.copies);
    printer.setCollateCopies(choices.collate);
    printer.setColorMode(choices.colorMode);
    printer.setDuplex(choices.duplex);
    printer.setPageOrder(choices.pageOrder);
    printer.setFromTo(choices.fromPage, choices.toPage);
    printer.setPrintRange(choices.range);
}

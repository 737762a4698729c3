#pragma once

/// Who has the printer of the running program.

class QPrinter;

/// The main window as other windows know it that print: what is set up once holds until the program ends.
class PrinterHost
{
public:
    virtual ~PrinterHost() = default;

    virtual QPrinter& Printer() = 0;
};

#pragma once

/// The printer dialog.

#include <QString>

#include <cstdint>

class QPrinter;
class QWidget;

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

/// Runs the dialog on `printer`, starting from what is chosen there; true for OK, and on Cancel the printer
/// is as before. `flags`: 2 starts with the page range, 8 offers no page range, 64 is print set-up.
///
/// Throws RunTimeError 65534 "There is no printer in this system."
bool AskForPrinter(QPrinter& printer, const PrinterLimits& first, std::int32_t flags, const QString& title,
                   QWidget* owner);

#pragma once

/// Prints on the printer of the running program.

#include "chart/drawing/PageArea.h"
#include "chart/layout/ChartSurface.h"

#include <functional>

class QPrinter;

/// Draws a page with a painter of its own, in the given printable area of the paper.
using DrawPage = std::function<void(QPainter&, const PageArea&)>;

/// Whether a page is portrait, or turned as the printer is set up.
enum class PageTurn
{
    Portrait,
    AsSetUp,
};

/// Prints one page with margins of 5 mm, or the least that the printer has where that is more. A PDF printer
/// with an output file writes that file: it is the old or the new one, never half of either.
///
/// However the job ends, the printer is as before; a font set while drawing ends with the job. Throws
/// RunTimeError: 65534 "There is no printer in this system." before anything is drawn, 57 "Device I/O error"
/// with the printer's name or file where the job cannot be started or finished, 61 for a full disk below an
/// output file, and whatever `drawPage` throws, after the job is taken back.
///
/// @param title names the job in the printer's queue, and the document in a PDF file
void PrintPage(QPrinter& printer, const DrawPage& drawPage, const QString& title = {},
               PageTurn turn = PageTurn::Portrait);

/// Prints pages that paint themselves on the printer as it is set up, with a painter of their own. Files,
/// errors and title as above.
void PrintPages(QPrinter& printer, const std::function<void(QPrinter&)>& printPages, const QString& title);

/// The kind of surface that a page of this printer is.
SurfaceKind KindOf(const QPrinter& printer);

#pragma once

/// Prints single pages on the application's printer.

#include "chart/drawing/PageArea.h"
#include "chart/layout/ChartSurface.h"

#include <functional>

class QPrinter;

/// Draws a page with a painter of its own, in the given printable area of the paper.
using DrawPage = std::function<void(QPainter&, const PageArea&)>;

/// Prints one portrait page with margins of 5 mm, or the least that the printer has where that is more. A PDF
/// printer with an output file writes that file: it is the old or the new one, never half of either.
///
/// However the job ends, orientation and margins of the printer are as before; a font set while drawing ends
/// with the job. Throws RunTimeError: 65534 "There is no printer in this system." before anything is drawn,
/// 57 "Device I/O error" with the printer's name or file where the job cannot be started or finished, 61 for
/// a full disk below an output file, and whatever `drawPage` throws, after the job is taken back.
void PrintPage(QPrinter& printer, const DrawPage& drawPage);

/// The kind of surface that a page of this printer is.
SurfaceKind KindOf(const QPrinter& printer);

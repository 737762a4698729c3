#pragma once

/// The printed data page: what a curve is of, and all its points in three columns.

#include "calc/ChartRecord.h"
#include "calc/Quantities.h"
#include "chart/drawing/PageArea.h"
#include "partdata/PartRecord.h"

#include <QString>

/// What is printed.
struct DataPage
{
    /// The line with its computed points.
    const ChartRecord& Line;
    const PartRecord& Part;
    /// The naming in which the part numbers are told.
    CodeView View;
    /// Today in the user's short format.
    QString Date;
    std::string DegreeSign = std::string(defaultDegreeSign);
};

/// Draws the page. The printable area is scaled from -5 to 95 from left to right and from 110 to -5
/// downwards. Texts are in Arial 9, on small paper smaller, so that the rows of the table stay apart, and
/// hang from their positions:
///
///     (0, 105)                   title and date
///     (0, 103)                   chart type
///     (0, 101)                   part number, global and previous
///     (0 and 35, 99 and 97)      conditions
///     (32c and 32c + 16, 95)     in each column c of the table the axis names, 93.5 the units
///     (32c, 32c + 16, 92 - 1.3r) X and Y of point 67c + r
///
/// A rule at 93.5 parts names and units of each column, reaches over both headings, and touches neither. A
/// text that is too wide for its place is condensed, then set smaller. Throws RunTimeError 5 for an axis,
/// parameter or chart type that does not exist.
void DrawDataPage(const DataPage& page, const PageArea& area, QPainter& painter);

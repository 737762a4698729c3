#pragma once

/// The curve of a line as a chart of any range shows it.

#include "chart/layout/ChartSurface.h"
#include "chart/layout/ChartView.h"
#include "partdata/PartRecord.h"

#include <span>
#include <string>
#include <vector>

/// A line of a chart on its own: copies, for a window that outlives changes of the store. The part's texts
/// are those of the part table.
struct ViewedLine
{
    ChartRecord Line;
    PartRecord Part;
    /// The part number on display.
    std::string PartNumber;
};

/// Connected points in plot units, all within the plot area.
using CurveRun = std::vector<Point>;

/// The curve of a line in the range of the view, cut at the edge of the plot, from left to right. Where the
/// range cuts the line, its points are worked out anew by `ValueAt`, 200 from end to end. No run where
/// nothing of the line can be drawn.
std::vector<CurveRun> ViewedCurve(const ViewedLine& line, const ChartView& view, CodeView code);

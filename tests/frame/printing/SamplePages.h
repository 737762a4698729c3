#pragma once

/// Lines of every chart type, and their printed pages, for the tests of printing.

#include "calc/ChartStore.h"
#include "chart/drawing/ChartPage.h"
#include "frame/PrintJob.h"
#include "partdata/PartTable.h"

#include <vector>

/// Six lines of a chart with the longest texts that users can bring about: conditions with many digits, and
/// parameters of every kind where the chart has a parameter. Curves and limits are simple numbers:
/// X runs evenly through the limits, and Y of line k rises evenly from YMin to YMax less k eighths of the
/// span.
std::vector<ChartRecord> SixLines(const ChartKey& chart);

/// All thirteen charts.
std::vector<ChartKey> AllCharts();

/// Draws the chart page of the lines; all are of one chart. Part k is called as `SamplePartNumber(k)` says.
DrawPage ChartPageOf(const std::vector<ChartRecord>& lines, SurfaceKind kind);
QString SamplePartNumber(int part);

/// Draws the data page of a line of the part "KTU033R71E101KA01", previously "HC0201X7R101K025".
DrawPage DataPageOf(const ChartRecord& line, CodeView view = CodeView::Eia);

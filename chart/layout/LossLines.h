#pragma once

/// The lines of a heating chart as what their parts lose: loss resistance over frequency.

#include "chart/layout/ChartView.h"
#include "chart/layout/ViewedCurve.h"

#include <vector>

/// True for a chart whose parts have a loss resistance as well.
bool HasLossLines(const ChartKey& chart);

/// The loss resistance of each line's part at its ambient temperature, under the line's number. A part that
/// has none anywhere, or whose calculation faults, has a line without values.
std::vector<ViewedLine> LossLinesOf(std::vector<ViewedLine> lines, CodeView code);

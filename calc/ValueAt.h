#pragma once

/// What a plotted line is at any X, and where it takes a value: from the law, not read off its points.

#include "calc/ChartRecord.h"
#include "partdata/PartRecord.h"

#include <optional>
#include <vector>

/// True for an X, in the unit of the record, between the line's own ends, both included and compared as
/// singles.
bool Reaches(const ChartRecord& line, double x);

/// The Y of a line at an X, both in the units of the record (a frequency in Hz). At an X that the line has
/// stored it is what is stored there, to the last digit.
///
/// Nothing where `Reaches` is false, for a part without a model, and where the law has no finite value.
std::optional<double> ValueAt(const PartRecord& part, const ChartRecord& line, double x, CodeView view);

/// Every X at which the line is `y`, upwards. A stretch on which it stays at `y` is told by its two ends.
std::vector<float> CrossingsOf(const PartRecord& part, const ChartRecord& line, float y, CodeView view);

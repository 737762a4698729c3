#pragma once

/// Computes the curve of a line whose conditions are written.

#include "calc/ChartRecord.h"
#include "calc/ParameterLimit.h"
#include "partdata/PartRecord.h"

#include <optional>

/// Reads chart type, axes, conditions and parameter of the record; writes points, default limits and
/// `ExtraValue`. Returns a refusal, with the record as it was, when the parameter of a temperature rise over
/// frequency is out of range. A capacitance of a part without a model leaves the points and writes the
/// limits.
///
/// Throws RunTimeError 5 for a chart type, axis or parameter that does not exist, and 5, 6 or 11 at the step
/// that goes wrong; the record is then as it was.
std::optional<ParameterRefusal> Calculate(const PartRecord& part, ChartRecord& record, CodeView view);

#pragma once

/// The curve of the line that is being plotted: the calculations applied to the chart data store.

#include "calc/Calculate.h"

#include <cstdint>

/// Computes the curve of the working record, whose conditions are written, for the part at an index, and
/// writes it there. Any chart type but the capacitance charts does nothing. Throws as `Calculate` does, with
/// the record as it was.
void CalculateDataS(std::int16_t partIndex);

/// The same for temperature rise and allowable power. Returns why the parameter of a temperature rise over
/// frequency is refused, with the record as it was.
std::optional<ParameterRefusal> CalculateDataT(std::int16_t partIndex);

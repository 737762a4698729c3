#pragma once

/// Computes the curve of a line whose conditions are written.

#include "calc/ChartRecord.h"
#include "partdata/PartRecord.h"

#include <optional>
#include <string>

/// Why a parameter of the temperature rise over frequency is refused.
struct ParameterRefusal
{
    /// Largest permitted parameter, as computed.
    double Limit;
    /// The limit rounded down to four significant digits, as the message shows it; itself permitted.
    float Shown;
    /// "Parameter is invalid!", a line break and the permitted range.
    std::string Message;
};

/// Computes the curve of a line: reads its chart type, axis names and conditions, writes points, default
/// limits and `ExtraValue`. A number that is no chart type does nothing. Returns a refusal, with the record
/// as it was, when the parameter of a temperature rise over frequency is out of range.
///
/// @param view the naming on display, which capacitance curves take their reference temperature from
///
/// Throws RunTimeError 5, 6 or 11 at the step that goes wrong; the record is then as it was.
std::optional<ParameterRefusal> Calculate(const PartRecord& part, ChartRecord& record, CodeView view);

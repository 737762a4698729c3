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

/// Capacitance curves (chart types 2 and 3; any other type does nothing): reads type, Y axis name, bias
/// and ambient temperature of the record, writes points and default limits.
///
/// Throws RunTimeError 5, 6 or 11 at the step that goes wrong; the record is then as it was.
void CalculateDataS(const PartRecord& part, ChartRecord& record, CodeView view);

/// Temperature rise and allowable power (chart types 0 and 1): reads the conditions of the record, writes
/// points, default limits and `ExtraValue`. Returns a refusal, with the record as it was, when the
/// parameter of a temperature rise over frequency is out of range.
///
/// Throws RunTimeError 5, 6 or 11 at the step that goes wrong; the record is then as it was.
std::optional<ParameterRefusal> CalculateDataT(const PartRecord& part, ChartRecord& record);

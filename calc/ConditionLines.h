#pragma once

/// Which conditions a curve was computed under, as the saved file and the printed pages tell them.

#include "calc/ChartRecord.h"
#include "calc/Conditions.h"

#include <string>
#include <vector>

/// One condition of a line: "DC Bias Voltage", "2.5", "[V]".
struct ConditionLine
{
    Condition Id;
    std::string Name;
    /// Number text of the value.
    std::string Value;
    /// "[V]", "[C/W]", "[kHz]" or "[C]"; of the parameter "[Arms]", "[Vrms]", "[W]" or "[VA]".
    std::string Unit;

    bool operator==(const ConditionLine&) const = default;
};

/// The conditions that the line's chart type uses (`ChartSweep::Conditions`), in the order in which they are
/// told; the others do not bear on the curve and are left out.
///
/// Throws RunTimeError 5 for a chart type that does not exist and, where the parameter counts, for a
/// parameter name that no parameter bears.
std::vector<ConditionLine> ConditionLines(const ChartRecord& line);

/// A condition of the line as it is read, "12 V", "75 °C/W" where the degree sign is given. Throws as
/// `ConditionLines`.
std::string ConditionText(const ConditionLine& condition, const ChartRecord& line,
                          std::string_view degreeSign);

/// The quantity that a condition of the line measures. Throws as `ConditionLines`.
Quantity MeasuredBy(Condition condition, const ChartRecord& line);

#pragma once

/// What the selection form takes over from a plotted line.

#include "calc/ChartRecord.h"
#include "calc/Conditions.h"
#include "partdata/PartRecord.h"

#include <span>
#include <string>
#include <vector>

/// A condition as it goes into its box.
struct TakenCondition
{
    Condition Id;
    /// Number text of the value.
    std::string Entry;
    /// With its unit: "12 V".
    std::string Text;
    /// Of the parameter: the number of its button; else 0.
    std::size_t Parameter = 0;
};

/// The conditions that the line was computed under, in the order in which files and panes tell them. A heat
/// resistance that is the part's own stays with the part and is left out. Throws as `ConditionLines`.
///
/// @param part the part of the line
std::vector<TakenCondition> ConditionsOf(const ChartRecord& line, const PartRecord& part,
                                         std::string_view degreeSign);

/// What the user is told of conditions that a line, No. 1 to 6 of its chart, has given away:
///
///     "Conditions of No.2 taken: 12 V, 300 kHz, 25 °C"
///     "No condition of No.2 is needed here."
std::string TakenText(int number, std::span<const TakenCondition> taken);

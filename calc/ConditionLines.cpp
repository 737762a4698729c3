#include "calc/ConditionLines.h"

#include "calc/ChartKinds.h"
#include "calc/NumberText.h"

Quantity MeasuredBy(Condition condition, const ChartRecord& line)
{
    const auto measures = KindOf(condition).Measures;
    return measures ? *measures : QuantityNamed(line.ParameterName);
}

/// The condition that a line was computed under; the parameter is told by the name of its load.
static ConditionLine LineOf(Condition condition, const ChartRecord& line)
{
    const ConditionKind& kind = KindOf(condition);
    const auto measures = MeasuredBy(condition, line);
    return {condition, std::string(kind.Measures ? kind.Name : NameOf(measures)),
            NumberText(line.*kind.Value), UnitOf(measures)};
}

std::vector<ConditionLine> ConditionLines(const ChartRecord& line)
{
    std::vector<ConditionLine> lines;
    for (const ConditionUse& use : SweepOf(line.ChartType, line.XAxisName).Conditions)
    {
        lines.push_back(LineOf(use.Id, line));
    }
    return lines;
}

std::string ConditionText(const ConditionLine& condition, const ChartRecord& line,
                          std::string_view degreeSign)
{
    const std::string unit = UnitOf(MeasuredBy(condition.Id, line), degreeSign);
    return condition.Value + ' ' + unit.substr(1, unit.size() - 2);
}

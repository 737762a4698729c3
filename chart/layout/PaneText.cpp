#include "chart/layout/PaneText.h"

#include "calc/ChartKinds.h"
#include "calc/ConditionLines.h"
#include "calc/NumberText.h"

#include <algorithm>

std::string LargestValueText(float value)
{
    const auto text = FormatNumber(value, NumberFormat::PaneValue);
    const bool anyDigit = std::ranges::any_of(text, [](char c) { return c >= '0' && c <= '9'; });
    return anyDigit ? text : "0";
}

/// A condition with its unit. Where it is the only one it stands apart: "(2.5[V] )", "(25[ °C] )".
static std::string ConditionText(const ConditionLine& condition, const ChartRecord& line, bool isOnly,
                                 std::string_view degreeSign)
{
    const auto measures = KindOf(condition.Id).Measures;
    const auto quantity = measures ? *measures : QuantityNamed(line.ParameterName);
    const std::string sign = (isOnly ? " " : "") + std::string(degreeSign);
    return condition.Value + UnitOf(quantity, sign) + (isOnly ? " " : "");
}

static std::string ConditionTexts(const ChartRecord& line, std::string_view degreeSign)
{
    std::string text;
    if (ChartKindOf(line.ChartType).TellsLargestValue)
    {
        text = LargestValueText(line.ExtraValue) + GetUnit(line.YAxisName, degreeSign);
    }
    const auto conditions = ConditionLines(line);
    for (const auto& condition : conditions)
    {
        text += text.empty() ? "" : ",";
        text += ConditionText(condition, line, conditions.size() == 1, degreeSign);
    }
    return text;
}

std::string PaneText(const ChartRecord& line, std::string_view degreeSign)
{
    return '(' + ConditionTexts(line, degreeSign) + ')';
}

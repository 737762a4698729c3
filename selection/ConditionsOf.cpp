#include "selection/ConditionsOf.h"

#include "calc/ChartKinds.h"
#include "calc/ConditionLines.h"

#include <algorithm>

static std::size_t ButtonOf(Quantity load)
{
    return static_cast<std::size_t>(std::ranges::find(Parameters, load) - Parameters.begin());
}

std::vector<TakenCondition> ConditionsOf(const ChartRecord& line, const PartRecord& part,
                                         std::string_view degreeSign)
{
    std::vector<TakenCondition> taken;
    for (const ConditionLine& told : ConditionLines(line))
    {
        const bool isOfThePart =
            told.Id == Condition::HeatResistance && told.Value == FirstEntry(told.Id, part, CodeView::Eia);
        if (isOfThePart)
        {
            continue;
        }
        taken.push_back(
            {.Id = told.Id,
             .Entry = told.Value,
             .Text = ConditionText(told, line, degreeSign),
             .Parameter = told.Id == Condition::Parameter ? ButtonOf(MeasuredBy(told.Id, line)) : 0});
    }
    return taken;
}

std::string TakenText(int number, std::span<const TakenCondition> taken)
{
    const std::string name = "No." + std::to_string(number);
    if (taken.empty())
    {
        return "No condition of " + name + " is needed here.";
    }
    std::string text = "Conditions of " + name + " taken: ";
    for (const TakenCondition& condition : taken)
    {
        text += (&condition == &taken.front() ? "" : ", ") + condition.Text;
    }
    return text;
}

#include "requests/PlaceHeading.h"

#include "calc/Conditions.h"

#include <algorithm>

std::string_view ShortNameOf(Quantity condition)
{
    const auto kinds = ConditionKinds();
    const auto kind = std::ranges::find(kinds, std::optional(condition), &ConditionKind::Measures);
    return condition == Quantity::DCVoltage ? "bias" : kind == kinds.end() ? "x" : kind->Key;
}

std::string PlaceHeading(std::string_view what, Quantity condition)
{
    return std::string(what) + " at " + std::string(ShortNameOf(condition)) + " [" + ShownUnitOf(condition) +
           ']';
}

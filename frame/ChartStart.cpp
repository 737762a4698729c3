#include "frame/ChartStart.h"

#include "calc/ChartKinds.h"
#include "calc/NumberText.h"
#include "partdata/Availability.h"

#include <algorithm>
#include <optional>

std::int16_t ChartTypeFor(const PartRecord& part, int asked)
{
    const auto kinds = ChartKinds();
    const auto available = [&](const ChartKind& kind) { return IsAvailable(part, NumberOf(kind)); };
    const auto first = std::ranges::find_if(kinds, available);
    const bool isFirst = !IsAvailable(part, asked) && first != kinds.end();
    return isFirst ? NumberOf(*first) : static_cast<std::int16_t>(asked);
}

bool IsHeating(std::int16_t chartType)
{
    return ChartKindOf(chartType).Needs == Values::OfPower;
}

OperatingPoint StartOf(const FoundPart& part, OperatingPoint at, std::int16_t chartType)
{
    const auto least = part.ConditionsAt(FoundPlace::Least);
    const auto hottest = part.ConditionsAt(FoundPlace::Rise);
    const float ambient = least ? (*least)[1] : at.AmbientC.High;
    at.BiasVolts = least ? (*least)[0] : at.BiasVolts.High;
    at.AmbientC = IsHeating(chartType) && hottest ? (*hottest)[0] : ambient;
    if (at.Kilohertz)
    {
        at.Kilohertz = hottest ? (*hottest)[1] : at.Kilohertz->High;
    }
    return at;
}

std::vector<TakenCondition> ConditionsOf(const OperatingPoint& at)
{
    std::vector<TakenCondition> conditions;
    const auto add = [&](Condition id, const std::optional<float>& value)
    {
        if (value)
        {
            conditions.push_back({.Id = id, .Entry = NumberText(*value), .Text = {}});
        }
    };
    add(Condition::DCBias, at.BiasVolts.Low);
    add(Condition::Frequency, at.Kilohertz ? std::optional(at.Kilohertz->Low) : std::nullopt);
    add(Condition::AmbientTemperature, at.AmbientC.Low);
    add(Condition::HeatResistance, at.HeatResistance);
    return conditions;
}

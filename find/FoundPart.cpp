#include "find/FoundPart.h"

#include <algorithm>

double FoundPart::RatingOf(FoundColumn column) const
{
    switch (column)
    {
    case FoundColumn::Capacitance:
        return part->Data[Value::Capacitance];
    case FoundColumn::RatedVoltage:
        return part->Data[Value::RatedVoltage];
    default:
        return std::numeric_limits<double>::quiet_NaN();
    }
}

/// A condition of a place in the unit that it is entered in.
static float ConditionOf(Quantity quantity, const Place& at)
{
    switch (quantity)
    {
    case Quantity::DCVoltage:
        return static_cast<float>(at.BiasVolts);
    case Quantity::Temperature:
        return static_cast<float>(at.AmbientC);
    default:
        return ShownValue(Quantity::Frequency, at.Hertz);
    }
}

void FoundPart::SetPlace(FoundPlace place, const Place& at)
{
    auto& conditions = places[static_cast<std::size_t>(place)];
    std::ranges::transform(KindOf(place).Conditions, conditions.begin(),
                           [&](Quantity quantity) { return ConditionOf(quantity, at); });
}

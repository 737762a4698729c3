#include "partdata/Availability.h"

#include <algorithm>
#include <cmath>

bool HasData(const PartRecord& part, ValueGroup group)
{
    const auto* const first = part.Data.data();
    return std::any_of(first + group.First, first + group.Last + 1, [](float value) { return value != 0; });
}

bool IsAvailable(const PartRecord& part, int chartType)
{
    if (!std::isfinite(part.Data[Value::Capacitance]) || !std::isfinite(part.Data[Value::RatedVoltage]))
    {
        return false;
    }
    switch (chartType)
    {
    case 0:
    case 1:
        return HasData(part, Values::OfPower);
    case 2:
    case 3:
        return HasData(part, Values::OfCapacitance);
    default:
        return false;
    }
}

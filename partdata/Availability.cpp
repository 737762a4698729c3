#include "partdata/Availability.h"

#include <algorithm>
#include <cmath>

bool HasData(const PartRecord& part, ValueGroup group)
{
    const auto* const first = part.Data.data();
    return std::any_of(first + group.First, first + group.Last + 1, [](float value) { return value != 0; });
}

bool CanBeListed(const PartRecord& part)
{
    return std::isfinite(part.Data[Value::Capacitance]) && std::isfinite(part.Data[Value::RatedVoltage]);
}

#include "find/FoundPart.h"

#include "calc/CheckedMath.h"
#include "calc/PowerModel.h"

#include <cmath>

std::optional<double> FoundPart::ValueOf(FoundColumn column) const
{
    const auto index = static_cast<std::size_t>(column);
    if (index >= firstComputed)
    {
        const double value = values[index - firstComputed];
        return std::isnan(value) ? std::nullopt : std::optional(value);
    }
    if (column == FoundColumn::Capacitance)
    {
        return part->Data[Value::Capacitance];
    }
    return column == FoundColumn::RatedVoltage ? std::optional(RatedVoltage(*part)) : std::nullopt;
}

void FoundPart::Set(FoundColumn column, double value)
{
    StoredSingle(value);
    values[static_cast<std::size_t>(column) - firstComputed] = value;
}

#include "find/FoundPart.h"

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

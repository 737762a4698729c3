#pragma once

/// What a part has data for.

#include "partdata/Availability.h"
#include "partdata/Characteristic.h"

/// True when the capacitance of the part is known under bias and heat.
inline bool HasCapacitanceData(const PartRecord& part)
{
    return CanBeListed(part) && HasData(part, Values::OfCapacitance) &&
           CapacitanceModelOf(part) != CapacitanceModel::None;
}

/// True when the heating of the part under load is known.
inline bool HasHeatingData(const PartRecord& part)
{
    return CanBeListed(part) && HasData(part, Values::OfPower);
}

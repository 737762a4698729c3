#pragma once

/// The charge of a part, worked out from its charts alone.

#include "calc/Capacitance.h"

/// The integral of the charts' capacitance over the bias from 0, over the nominal one, in V: by Simpson's
/// rule in steps so fine that the places where the law is rough do not tell.
inline double ChargeOfCharts(const PartRecord& part, double volts, double celsius)
{
    constexpr int steps = 20000;
    double sum = 0;
    for (int i = 0; i <= steps; ++i)
    {
        const int weight = i == 0 || i == steps ? 1 : i % 2 == 0 ? 2 : 4;
        sum += weight * CapacitancePointAt(part, volts * i / steps, celsius, CodeView::Eia)->PicoFarads;
    }
    return sum * volts / (3 * steps) / double{part.Data[Value::NominalCapacitance]};
}

#pragma once

/// The chart types by the numbers that records and buttons bear.

#include "calc/ChartKinds.h"

enum class ChartId : std::int16_t
{
    TemperatureRise = 0,
    AllowablePower = 1,
    CapacitanceTemperature = 2,
    CapacitanceDCVoltage = 3,
    LossResistance = 4,
};

constexpr std::int16_t NumberOf(ChartId chart)
{
    return static_cast<std::int16_t>(chart);
}

inline const ChartKind& KindOf(ChartId chart)
{
    return ChartKindOf(NumberOf(chart));
}

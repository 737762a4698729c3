#pragma once

/// Parts and power models whose loads and rises are easily worked out by hand.

#include "calc/PowerModel.h"

#include <cmath>

/// 10 V, Tmax 125 °C; at 20 °C and without bias kI = 4·Rth/50 and kV = (log10 f)·0.25·Rth/50, S3 = 2.5.
inline PartRecord HeatedPart()
{
    PartRecord part;
    part.Data[Value::RatedVoltage] = 10;
    part.Data[Value::Current] = 4;
    part.Data[Value::HeatResistance] = 50;
    part.Data[Value::Amplitude] = static_cast<float>(std::log10(0.25));
    part.Data[Value::FrequencyExponent] = 1;
    part.Data[Value::VoltageExponent] = 2.5F;
    part.Data[Value::UpperTemperature] = 125;
    return part;
}

inline PowerModel HeatedModel()
{
    return PowerModelOf(HeatedPart(), 0, 20, 50);
}

/// kI = kV = 1 at every frequency, S3 = 2, Rth = Rref = 50.
inline PowerModel UnitModel()
{
    return {.Q1 = 0, .Q2 = 1, .Q3 = 0, .S1 = 1, .S2 = 0, .S3 = 2, .Rref = 50, .Rth = 50};
}

inline constexpr double frequencyHz = 1e5;

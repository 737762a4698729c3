#pragma once

/// Parts whose charge is worked out by hand or in another way, and the sample range.

#include "files/PartLoading.h"

#include <stdexcept>
#include <string>

/// 1000 pF, 10 V, X7R. It loses 1 % of its capacitance a volt and nothing over temperature, so that its
/// charge over its capacitance is V - V²/200. Its heating data is 50 Ω at 1 MHz, 500 Ω at 100 kHz, whatever
/// the temperature.
inline PartRecord ProductPart()
{
    PartRecord part{
        .PartNum = {"A-1", "A-2", "A-3", "A-4"}, .SizeCode = {"1206", "3216"}, .Tcc = {"X7R", "R"}};
    part.Data[Value::NominalCapacitance] = 1000;
    part.Data[Value::RatedVoltage] = 10;
    part.Data[Value::BiasV] = -1;
    part.Data[Value::CurrentPerF] = 1e9F;
    part.Data[Value::HeatResistance] = 20;
    part.Data[Value::UpperTemperature] = 125;
    return part;
}

/// 1000 pF, 10 V, Y5V. The bias moves its peak from 30 °C to 10 °C, and it has no heating data.
inline PartRecord PeakedPart()
{
    PartRecord part{
        .PartNum = {"F-1", "F-2", "F-3", "F-4"}, .SizeCode = {"1206", "3216"}, .Tcc = {"Y5V", "F"}};
    part.Data[Value::NominalCapacitance] = 1000;
    part.Data[Value::RatedVoltage] = 10;
    part.Data[Value::BiasV] = -4;
    part.Data[Value::PeakAmplitude] = 85;
    part.Data[Value::PeakOffset] = -80;
    part.Data[Value::PeakTemperature] = 30;
    part.Data[Value::PeakTemperatureV] = -2;
    part.Data[Value::DecayBelow] = 2e-3F;
    part.Data[Value::DecayAbove] = 1e-3F;
    part.Data[Value::ExponentBelow] = 1.5F;
    part.Data[Value::ExponentAbove] = 1.7F;
    return part;
}

/// The part with one value of its own.
inline PartRecord With(PartRecord part, Value::Index value, float number)
{
    part.Data[value] = number;
    return part;
}

inline const PartTable& SampleParts()
{
    static const PartTable parts = LoadPartData(SAMPLE_RANGE);
    return parts;
}

/// A part of the sample range by its global number in EIA code.
inline const PartRecord& SamplePart(std::string_view partNum)
{
    const auto* const index = SampleParts().PartIndex[0].Find(partNum);
    if (index == nullptr)
    {
        throw std::out_of_range(std::string(partNum));
    }
    return SampleParts().PartData.at(static_cast<std::size_t>(*index));
}

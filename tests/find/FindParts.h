#pragma once

/// Parts whose values at an operating point are worked out by hand.

#include "find/PartFinder.h"
#include "partdata/PartTable.h"

#include <cmath>
#include <optional>
#include <vector>

/// 1000 pF, 10 V, X7R, 1206 (3.2 mm by 1.6 mm), Tmax 125 °C. It loses 1 % of its capacitance a volt and
/// nothing over temperature. With its own heat resistance of 50 °C/W kI = 4 °C/A² and, at 100 kHz,
/// kV = 1.25 °C/V^2.5; the current heats 4/50 Ω = 80 mΩ.
inline PartRecord PlainPart()
{
    PartRecord part{
        .PartNum = {"A-1", "A-2", "A-3", "A-4"}, .SizeCode = {"1206", "3216"}, .Tcc = {"X7R", "R"}};
    part.Data[Value::Capacitance] = 1000;
    part.Data[Value::NominalCapacitance] = 1000;
    part.Data[Value::RatedVoltage] = 10;
    part.Data[Value::BiasV] = -1;
    part.Data[Value::Current] = 4;
    part.Data[Value::HeatResistance] = 50;
    part.Data[Value::Amplitude] = static_cast<float>(std::log10(0.25));
    part.Data[Value::FrequencyExponent] = 1;
    part.Data[Value::VoltageExponent] = 2.5F;
    part.Data[Value::UpperTemperature] = 125;
    return part;
}

inline PartRecord WithoutCapacitanceData()
{
    PartRecord part = PlainPart();
    part.Data[Value::BiasV] = 0;
    return part;
}

inline PartRecord WithoutHeatingData()
{
    PartRecord part = PlainPart();
    for (std::size_t i = Values::OfPower.First; i <= Values::OfPower.Last; ++i)
    {
        part.Data[i] = 0;
    }
    return part;
}

/// 100 kHz.
inline OperatingPoint At(float biasVolts, float ambientC = 25, std::optional<float> kilohertz = 100.0F)
{
    return {.BiasVolts = biasVolts, .AmbientC = ambientC, .Kilohertz = kilohertz};
}

inline OperatingPoint With(OperatingPoint at, Quantity kind, float load)
{
    at.Load = AcLoad{.Kind = kind, .Value = load};
    return at;
}

inline FoundParts Find(const std::vector<PartRecord>& parts, const OperatingPoint& at,
                       const Wants& wanted = {})
{
    std::vector<const PartRecord*> candidates;
    for (const PartRecord& part : parts)
    {
        candidates.push_back(&part);
    }
    return FindParts(candidates, {.At = at, .Wanted = wanted});
}

/// The value of the only part that is found.
inline std::optional<double> ValueOf(const FoundParts& found, FoundColumn column)
{
    return found.Parts.size() == 1 ? found.Parts.front().ValueOf(column) : std::nullopt;
}

#include "stress/Converters.h"

#include <cmath>
#include <utility>

namespace
{
/// The volts that charge the coil and those that empty it, and the mean current that the load asks of it.
struct CoilDuty
{
    double ChargingVolts;
    double EmptyingVolts;
    /// The charge that leaves a coil of current i over a time t goes to the output, or in a buck converter
    /// all that passes it.
    bool OutputIsFedWhileCharging;
    /// The output's share of the coil's current: 1/n in a flyback, whose coil is seen from the primary side.
    double ToOutput;
};

CoilDuty DutyOf(const Converter& c)
{
    switch (c.Kind)
    {
    case ConverterKind::Buck:
        return {c.Vin - c.Vout, c.Vout, true, 1};
    case ConverterKind::Boost:
        return {c.Vin, c.Vout - c.Vin, false, 1};
    default:
        return {c.Vin, c.Turns * c.Vout, false, c.Turns};
    }
}

/// The coil's current at the two ends of its charging, of one mean.
CoilState ContinuousCoil(const Converter& c, const CoilDuty& duty)
{
    const double charging = duty.EmptyingVolts / (duty.ChargingVolts + duty.EmptyingVolts);
    const double swing = duty.ChargingVolts * charging / (c.Henries * c.Hertz);
    const double feeding = duty.OutputIsFedWhileCharging ? 1 : 1 - charging;
    const double mean = c.Iout / (duty.ToOutput * feeding);
    return {.Charging = charging,
            .Emptying = 1 - charging,
            .Least = mean - swing / 2,
            .Most = mean + swing / 2,
            .IsContinuous = true};
}

/// The coil starts each period without current.
CoilState DiscontinuousCoil(const Converter& c, const CoilDuty& duty)
{
    // Its peak p is ChargingVolts·d/(l·f), its emptying e = d·ChargingVolts/EmptyingVolts, and Iout the mean
    // of what feeds the output: p/2·e, and in a buck converter p/2·(d + e).
    const double ratio = duty.ChargingVolts / duty.EmptyingVolts;
    const double fed = duty.OutputIsFedWhileCharging ? 1 + ratio : ratio;
    const double charging =
        std::sqrt(2 * c.Henries * c.Hertz * c.Iout / (duty.ChargingVolts * fed * duty.ToOutput));
    return {.Charging = charging,
            .Emptying = charging * ratio,
            .Least = 0,
            .Most = duty.ChargingVolts * charging / (c.Henries * c.Hertz),
            .IsContinuous = false};
}

/// The coil's current seen from a side, in each of the three parts of a period: times 1, or 0 where the side
/// is cut off.
struct Passing
{
    double WhileCharging;
    double WhileEmptying;
};

Passing PassingOf(const Converter& c, ConverterSide side)
{
    const bool isInput = side == ConverterSide::Input;
    switch (c.Kind)
    {
    case ConverterKind::Buck:
        return isInput ? Passing{-1, 0} : Passing{1, 1};
    case ConverterKind::Boost:
        return isInput ? Passing{-1, -1} : Passing{0, 1};
    default:
        return isInput ? Passing{-1, 0} : Passing{0, c.Turns};
    }
}

bool IsNumber(double value)
{
    return value > 0 && std::isfinite(value);
}
} // namespace

std::optional<std::string_view> RefuseConverter(const Converter& c)
{
    constexpr double lowestHertz = 1e3;
    constexpr double highestHertz = 1e7;
    for (const double value : {c.Vin, c.Vout, c.Iout, c.Hertz, c.Henries, c.Turns})
    {
        if (!IsNumber(value))
        {
            return "all values of a converter are above 0";
        }
    }
    if (c.Hertz < lowestHertz || c.Hertz > highestHertz)
    {
        return "the frequency of a converter is from 1 kHz to 10 MHz";
    }
    if (c.Kind == ConverterKind::Buck && c.Vout >= c.Vin)
    {
        return "a buck converter's vout is below its vin";
    }
    if (c.Kind == ConverterKind::Boost && c.Vout <= c.Vin)
    {
        return "a boost converter's vout is above its vin";
    }
    return std::nullopt;
}

CoilState CoilOf(const Converter& c)
{
    const auto duty = DutyOf(c);
    const auto continuous = ContinuousCoil(c, duty);
    return c.IsForced || continuous.Least >= 0 ? continuous : DiscontinuousCoil(c, duty);
}

Waveform CurrentOf(const Converter& c, ConverterSide side)
{
    const auto coil = CoilOf(c);
    const auto passing = PassingOf(c, side);
    const double period = 1 / c.Hertz;
    const double charged = coil.Charging * period;
    const double emptied = coil.IsContinuous ? period : (coil.Charging + coil.Emptying) * period;
    std::vector<WavePoint> corners = {{0, passing.WhileCharging * coil.Least},
                                      {charged, passing.WhileCharging * coil.Most},
                                      {charged, passing.WhileEmptying * coil.Most},
                                      {emptied, passing.WhileEmptying * coil.Least}};
    if (!coil.IsContinuous)
    {
        corners.push_back({period, 0});
    }
    return Waveform(std::move(corners));
}

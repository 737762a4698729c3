#include "calc/AllowablePower.h"

#include "calc/CheckedMath.h"
#include "calc/DefaultAxes.h"
#include "calc/FrequencyLaws.h"

#include <algorithm>

namespace
{
/// The curve whose load at frequency index i is `loadAt(i)`.
template <class LoadAt> Curve CurveOverFrequency(LoadAt loadAt)
{
    Curve curve{.HasPoints = true, .XData = LogFrequencySweep().XData};
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        curve.YData[i] = StoredSingle(loadAt(i));
    }
    const auto [smallest, largest] = std::ranges::minmax_element(curve.YData);
    curve.ExtraValue = *largest;
    curve.Limits = LogarithmicAxes(*largest, *smallest);
    return curve;
}

Curve LargestCurrents(const PowerModel& model, double permittedRise)
{
    const auto kI = kIOverFrequency(model);
    return CurveOverFrequency([&](std::size_t i) { return CurrentOfRise(permittedRise, kI[i]); });
}

Curve LargestVoltages(const PowerModel& model, double voltageBound, double permittedRise)
{
    const auto volts = VoltageOverFrequency(model, permittedRise);
    return CurveOverFrequency([&](std::size_t i) { return std::min(volts[i], voltageBound); });
}

Curve LargestApparentPowers(const PowerModel& model, double voltageBound, double permittedRise)
{
    const auto loads = ApparentPowerOverFrequency(model, permittedRise, voltageBound);
    return CurveOverFrequency([&](std::size_t i) { return loads[i]; });
}

Curve LargestEffectivePowers(const PowerModel& model, double voltageBound, double permittedRise)
{
    const auto volts = VoltageOverFrequency(model, permittedRise);
    const auto rises = BoundedRise(model, volts, permittedRise, voltageBound);
    return CurveOverFrequency([&](std::size_t i) { return CheckedQuotient(rises[i], model.Rth); });
}

/// The largest voltage at one frequency, and the rise that it leaves.
struct BoundedLoad
{
    double Volts;
    double Rise;
};

BoundedLoad BoundedLoadAt(const PowerModel& model, double voltageBound, double permittedRise,
                          double frequencyHz)
{
    const double kV = model.kV(frequencyHz);
    const double volts = VoltageOfRise(permittedRise, kV, model.S3);
    return volts < voltageBound
               ? BoundedLoad{.Volts = volts, .Rise = permittedRise}
               : BoundedLoad{.Volts = voltageBound, .Rise = kV * CheckedPower(voltageBound, model.S3)};
}

double VoltAmperesOf(const BoundedLoad& bounded, double kI)
{
    return bounded.Volts * CurrentOfRise(bounded.Rise, kI);
}

double WattsOf(const BoundedLoad& bounded, const PowerModel& model)
{
    return CheckedQuotient(bounded.Rise, model.Rth);
}
} // namespace

double AllowableVoltageBound(double ratedVolts, double biasVolts)
{
    return biasVolts <= 0.5 * ratedVolts ? 0.354 * ratedVolts : 0.707 * (ratedVolts - biasVolts);
}

Curve AllowableLoad(const PowerModel& model, double voltageBound, double permittedRise, Quantity load)
{
    switch (load)
    {
    case Quantity::Current:
        return LargestCurrents(model, permittedRise);
    case Quantity::RmsVoltage:
        return LargestVoltages(model, voltageBound, permittedRise);
    case Quantity::ApparentPower:
        return LargestApparentPowers(model, voltageBound, permittedRise);
    case Quantity::EffectivePower:
        return LargestEffectivePowers(model, voltageBound, permittedRise);
    default:
        FailOn(load);
    }
}

AllowableLoads AllowableLoadsAt(const PowerModel& model, double voltageBound, double permittedRise,
                                double frequencyHz)
{
    const double kI = model.kI(frequencyHz);
    const auto bounded = BoundedLoadAt(model, voltageBound, permittedRise, frequencyHz);
    return {.Arms = CurrentOfRise(permittedRise, kI),
            .Vrms = bounded.Volts,
            .VoltAmperes = VoltAmperesOf(bounded, kI),
            .Watts = WattsOf(bounded, model)};
}

double AllowableLoadAt(const PowerModel& model, double voltageBound, double permittedRise, Quantity load,
                       double frequencyHz)
{
    if (load == Quantity::Current)
    {
        return CurrentOfRise(permittedRise, model.kI(frequencyHz));
    }
    const auto bounded = BoundedLoadAt(model, voltageBound, permittedRise, frequencyHz);
    switch (load)
    {
    case Quantity::RmsVoltage:
        return bounded.Volts;
    case Quantity::ApparentPower:
        return VoltAmperesOf(bounded, model.kI(frequencyHz));
    case Quantity::EffectivePower:
        return WattsOf(bounded, model);
    default:
        FailOn(load);
    }
}

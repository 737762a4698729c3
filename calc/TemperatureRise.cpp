#include "calc/TemperatureRise.h"

#include "calc/Bounds.h"
#include "calc/CheckedMath.h"
#include "calc/DefaultAxes.h"
#include "calc/FrequencyLaws.h"
#include "calc/ParameterLimit.h"
#include "calc/Sweep.h"

#include <algorithm>
#include <cmath>

namespace
{
/// Farther above the ceiling than any rounding of a load to a single lifts a rise, and invisible on a chart.
constexpr double ceilingTolerance = 1e-3;

/// The curve over a load that grows from 0 to `end`; `riseAt(load, i)` is the rise at point i.
template <class RiseAt> Curve CurveOverLoad(double end, RiseAt riseAt)
{
    Curve curve{.HasPoints = true};
    const auto loads = LinearSweep(0, end);
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        curve.XData[i] = StoredSingle(loads[i]);
        curve.YData[i] = StoredSingle(riseAt(loads[i], i));
    }
    curve.Limits = SetDefaultAxes(std::ranges::max(curve.XData), 0, std::ranges::max(curve.YData), 0);
    return curve;
}

/// The curve of coefficient·load^exponent: (i/199)^exponent times the rise at the end, one exponential a
/// point.
Curve CurveOfPower(double end, double coefficient, double exponent)
{
    const double firstRise = coefficient * CheckedPower(0, exponent);
    const double endRise = CheckedFinite(coefficient * CheckedPower(end, exponent));
    const auto& ln = LnFractions();
    return CurveOverLoad(end, [&](double, std::size_t i)
                         { return i == 0 ? firstRise : endRise * std::exp(exponent * ln[i]); });
}

Curve CurveOverCurrent(const PowerModel& model, double frequencyHz)
{
    const double kI = model.kI(frequencyHz);
    return CurveOverLoad(CurrentOfRise(RiseCeiling, kI),
                         [=](double amperes, std::size_t) { return amperes * amperes * kI; });
}

Curve CurveOverVoltage(const PowerModel& model, double ratedVolts, double frequencyHz)
{
    const double kV = model.kV(frequencyHz);
    double end = RiseVoltageBound * ratedVolts;
    if (kV * CheckedPower(end, model.S3) > RiseCeiling)
    {
        end = VoltageOfRise(RiseCeiling, kV, model.S3);
    }
    return CurveOfPower(end, kV, model.S3);
}

Curve CurveOverApparentPower(const PowerModel& model, double ratedVolts, double frequencyHz)
{
    const double kI = model.kI(frequencyHz);
    const double kV = model.kV(frequencyHz);
    const double bound = RiseVoltageBound * ratedVolts;
    const double free = VoltageOfRise(RiseCeiling, kV, model.S3);
    const double endRise = free < bound ? RiseCeiling : kV * CheckedPower(bound, model.S3);
    const double end = std::min(free, bound) * CurrentOfRise(endRise, kI);
    const double exponent = ApparentPowerExponent(model.S3);
    const double perVoltAmpere = std::sqrt(kI) * CheckedPower(kV, 1 / model.S3);
    return CurveOfPower(end, CheckedPower(perVoltAmpere, exponent), exponent);
}

Curve CurveOverEffectivePower(const PowerModel& model)
{
    return CurveOverLoad(CheckedQuotient(RiseCeiling, model.Rth),
                         [&](double watts, std::size_t) { return watts * model.Rth; });
}

/// The limits of a rise over frequency.
AxisLimits FrequencyLimits(float largestRise)
{
    constexpr auto ceiling = static_cast<float>(RiseCeiling);
    return {.XMax = static_cast<float>(HighestFrequencyHz),
            .YMax = largestRise >= ceiling ? ceiling : NextTenAbove(largestRise),
            .XMin = static_cast<float>(LowestFrequencyHz),
            .YMin = 0};
}

/// A rise that the rounding of its load lifts over the ceiling stays on the chart.
double OnChart(double rise)
{
    const bool isRounding = rise > RiseCeiling && rise < RiseCeiling + ceilingTolerance;
    return isRounding ? RiseCeiling : rise;
}

double RiseOfApparentPower(const PowerModel& model, double voltAmperes, double frequencyHz)
{
    const double kV = CheckedPower(model.kV(frequencyHz), 1 / model.S3);
    return CheckedPower(voltAmperes * std::sqrt(model.kI(frequencyHz)) * kV, ApparentPowerExponent(model.S3));
}

/// The curve whose rise at each frequency index is `riseAt(i)`.
template <class RiseAt> Curve CurveOverFrequency(RiseAt riseAt)
{
    Curve curve{.HasPoints = true, .XData = LogFrequencySweep().XData};
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        curve.YData[i] = StoredSingle(OnChart(riseAt(i)));
    }
    curve.Limits = FrequencyLimits(std::ranges::max(curve.YData));
    return curve;
}

using RiseResult = std::variant<Curve, ParameterRefusal>;

RiseResult RiseByCurrent(const PowerModel& model, float amperes)
{
    const auto kI = kIOverFrequency(model);
    const double limit = CurrentOfRise(RiseCeiling, std::ranges::max(kI));
    if (auto refusal = RefuseLoad(amperes, limit))
    {
        return *refusal;
    }
    return CurveOverFrequency([&](std::size_t i) { return double{amperes} * amperes * kI[i]; });
}

RiseResult RiseByVoltage(const PowerModel& model, double ratedVolts, float volts)
{
    // The voltage rises or falls throughout, so that it is smallest at one of the ends.
    const auto& hz = LogFrequencySweep().Hz;
    const double limit =
        std::min({RiseVoltageBound * ratedVolts, VoltageOfRise(RiseCeiling, model.kV(hz.front()), model.S3),
                  VoltageOfRise(RiseCeiling, model.kV(hz.back()), model.S3)});
    if (auto refusal = RefuseLoad(volts, limit))
    {
        return *refusal;
    }
    const auto kV = kVOverFrequency(model);
    const double power = CheckedPower(volts, model.S3);
    return CurveOverFrequency([&](std::size_t i) { return power * kV[i]; });
}

RiseResult RiseByApparentPower(const PowerModel& model, double ratedVolts, float voltAmperes)
{
    const auto loads = ApparentPowerOverFrequency(model, RiseCeiling, RiseVoltageBound * ratedVolts);
    const double exponent = ApparentPowerExponent(model.S3);
    if (auto refusal = RefuseLoad(voltAmperes, std::ranges::min(loads)))
    {
        return *refusal;
    }
    // (X·kI^½·kV^(1/S3))^exponent, with what depends on frequency under one exponential.
    const double constant =
        CheckedPower(voltAmperes * CheckedPower(model.kVConstant(), 1 / model.S3), exponent);
    const double perLnLog10 = model.S2 / model.S3 * exponent;
    const auto& lnLog10 = LogFrequencySweep().LnLog10Hz;
    return CurveOverFrequency(
        [&](std::size_t i)
        {
            const double ln =
                exponent / 2 * std::log(model.kI(LogFrequencySweep().Hz[i])) + perLnLog10 * lnLog10[i];
            return constant * std::exp(ln);
        });
}

RiseResult RiseByEffectivePower(const PowerModel& model, float watts)
{
    if (auto refusal = RefuseLoad(watts, CheckedQuotient(RiseCeiling, model.Rth)))
    {
        return *refusal;
    }
    return CurveOverFrequency([&](std::size_t) { return watts * model.Rth; });
}
} // namespace

Curve RiseOverLoad(const PowerModel& model, double ratedVolts, double frequencyHz, Quantity load)
{
    switch (load)
    {
    case Quantity::Current:
        return CurveOverCurrent(model, frequencyHz);
    case Quantity::RmsVoltage:
        return CurveOverVoltage(model, ratedVolts, frequencyHz);
    case Quantity::ApparentPower:
        return CurveOverApparentPower(model, ratedVolts, frequencyHz);
    case Quantity::EffectivePower:
        return CurveOverEffectivePower(model);
    default:
        FailOn(load);
    }
}

std::variant<Curve, ParameterRefusal> RiseOverFrequency(const PowerModel& model, double ratedVolts,
                                                        Quantity load, float parameter)
{
    switch (load)
    {
    case Quantity::Current:
        return RiseByCurrent(model, parameter);
    case Quantity::RmsVoltage:
        return RiseByVoltage(model, ratedVolts, parameter);
    case Quantity::ApparentPower:
        return RiseByApparentPower(model, ratedVolts, parameter);
    case Quantity::EffectivePower:
        return RiseByEffectivePower(model, parameter);
    default:
        FailOn(load);
    }
}

double RiseAt(const PowerModel& model, Quantity load, double value, double frequencyHz)
{
    switch (load)
    {
    case Quantity::Current:
        return OnChart(value * value * model.kI(frequencyHz));
    case Quantity::RmsVoltage:
        return OnChart(model.kV(frequencyHz) * CheckedPower(value, model.S3));
    case Quantity::ApparentPower:
        return OnChart(RiseOfApparentPower(model, value, frequencyHz));
    case Quantity::EffectivePower:
        return OnChart(value * model.Rth);
    default:
        FailOn(load);
    }
}

#include "calc/TemperatureRise.h"

#include "calc/CheckedMath.h"
#include "calc/DefaultAxes.h"
#include "calc/ParameterLimit.h"
#include "calc/Sweep.h"

#include <algorithm>
#include <cmath>

namespace
{
/// Farther above the ceiling than any rounding of a load to a single lifts a rise, and invisible on a chart.
constexpr double ceilingTolerance = 1e-3;

/// A curve of the form rise = Coefficient · load^Exponent that ends at a load.
struct PowerLaw
{
    double End;
    double Coefficient;
    double Exponent;
};

PowerLaw CurrentLaw(const PowerModel& model, double frequencyHz)
{
    const double kI = model.kI(frequencyHz);
    return {.End = CurrentOfRise(RiseCeiling, kI), .Coefficient = kI, .Exponent = 2};
}

PowerLaw VoltageLaw(const PowerModel& model, double ratedVolts, double frequencyHz)
{
    const double kV = model.kV(frequencyHz);
    double end = RiseVoltageBound * ratedVolts;
    if (kV * CheckedPower(end, model.S3) > RiseCeiling)
    {
        end = CheckedPower(RiseCeiling / kV, CheckedQuotient(1, model.S3));
    }
    return {.End = end, .Coefficient = kV, .Exponent = model.S3};
}

PowerLaw ApparentPowerLaw(const PowerModel& model, double ratedVolts, double frequencyHz)
{
    const double kI = model.kI(frequencyHz);
    const double kV = model.kV(frequencyHz);
    const auto atCeiling = VoltageOfRise(RiseCeiling, kV, model.S3, RiseVoltageBound * ratedVolts);
    const double exponent = ApparentPowerExponent(model.S3);
    const double perVoltAmpere = std::sqrt(kI) * CheckedPower(kV, 1 / model.S3);
    return {.End = atCeiling.Volts * CurrentOfRise(atCeiling.Rise, kI),
            .Coefficient = CheckedPower(perVoltAmpere, exponent),
            .Exponent = exponent};
}

PowerLaw EffectivePowerLaw(const PowerModel& model)
{
    return {.End = CheckedQuotient(RiseCeiling, model.Rth), .Coefficient = model.Rth, .Exponent = 1};
}

/// The points of a law: X accumulates, Y follows from Y at the end, (i/199)^Exponent times that.
Curve CurveOf(const PowerLaw& law)
{
    Curve curve{.HasPoints = true};
    const auto sweep = LinearSweep(0, law.End);
    const double endRise = CheckedFinite(law.Coefficient * CheckedPower(law.End, law.Exponent));
    curve.XData[0] = 0;
    curve.YData[0] = StoredSingle(law.Coefficient * CheckedPower(0, law.Exponent));
    for (std::size_t i = 1; i < CurvePoints; ++i)
    {
        curve.XData[i] = StoredSingle(sweep[i]);
        curve.YData[i] = StoredSingle(endRise * std::exp(law.Exponent * LnFractions()[i]));
    }
    curve.Limits = SetDefaultAxes(std::ranges::max(curve.XData), 0, std::ranges::max(curve.YData), 0);
    return curve;
}

/// The limits of a rise over frequency.
AxisLimits FrequencyLimits(float largestRise)
{
    constexpr auto ceiling = static_cast<float>(RiseCeiling);
    return {.XMax = 1e6F,
            .YMax = largestRise >= ceiling ? ceiling : NextTenAbove(largestRise),
            .XMin = 1e4F,
            .YMin = 0};
}

/// A rise as it is stored: one that the rounding of its load lifts over the ceiling stays on the chart.
float StoredRise(double rise)
{
    const bool isRounding = rise > RiseCeiling && rise < RiseCeiling + ceilingTolerance;
    return StoredSingle(isRounding ? RiseCeiling : rise);
}

/// The curve whose rise at each frequency index is `riseAt(i)`.
template <class RiseAt> Curve CurveOverFrequency(RiseAt riseAt)
{
    Curve curve{.HasPoints = true, .XData = LogFrequencySweep().XData};
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        curve.YData[i] = StoredRise(riseAt(i));
    }
    curve.Limits = FrequencyLimits(std::ranges::max(curve.YData));
    return curve;
}

/// kI at every frequency of the sweep.
SweepValues kIOverFrequency(const PowerModel& model)
{
    SweepValues values;
    std::ranges::transform(LogFrequencySweep().Hz, values.begin(),
                           [&](double frequencyHz) { return model.kI(frequencyHz); });
    return values;
}

/// kV at every frequency of the sweep.
SweepValues kVOverFrequency(const PowerModel& model)
{
    SweepValues values;
    std::ranges::transform(LogFrequencySweep().Hz, values.begin(),
                           [&](double frequencyHz) { return model.kV(frequencyHz); });
    return values;
}

using RiseResult = std::variant<Curve, ParameterRefusal>;

RiseResult RiseByCurrent(const PowerModel& model, float amperes)
{
    const auto kI = kIOverFrequency(model);
    const double limit = CurrentOfRise(RiseCeiling, std::ranges::max(kI));
    if (auto refusal = RefuseParameter(amperes, limit))
    {
        return *refusal;
    }
    return CurveOverFrequency([&](std::size_t i) { return double{amperes} * amperes * kI[i]; });
}

RiseResult RiseByVoltage(const PowerModel& model, double ratedVolts, float volts)
{
    const auto kV = kVOverFrequency(model);
    double limit = RiseVoltageBound * ratedVolts;
    for (const double k : kV)
    {
        limit = VoltageOfRise(RiseCeiling, k, model.S3, limit).Volts;
    }
    if (auto refusal = RefuseParameter(volts, limit))
    {
        return *refusal;
    }
    const double power = CheckedPower(volts, model.S3);
    return CurveOverFrequency([&](std::size_t i) { return power * kV[i]; });
}

RiseResult RiseByApparentPower(const PowerModel& model, double ratedVolts, float voltAmperes)
{
    const auto kI = kIOverFrequency(model);
    const auto kV = kVOverFrequency(model);
    double limit = HUGE_VAL;
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        const auto atCeiling = VoltageOfRise(RiseCeiling, kV[i], model.S3, RiseVoltageBound * ratedVolts);
        limit = std::min(limit, atCeiling.Volts * CurrentOfRise(atCeiling.Rise, kI[i]));
    }
    const double exponent = ApparentPowerExponent(model.S3);
    if (auto refusal = RefuseParameter(voltAmperes, limit))
    {
        return *refusal;
    }
    return CurveOverFrequency(
        [&](std::size_t i)
        {
            const double base = voltAmperes * std::sqrt(kI[i]) * CheckedPower(kV[i], 1 / model.S3);
            return CheckedPower(base, exponent);
        });
}

RiseResult RiseByEffectivePower(const PowerModel& model, float watts)
{
    if (auto refusal = RefuseParameter(watts, CheckedQuotient(RiseCeiling, model.Rth)))
    {
        return *refusal;
    }
    return CurveOverFrequency([&](std::size_t) { return watts * model.Rth; });
}
} // namespace

Curve RiseOverLoad(const PowerModel& model, double ratedVolts, double frequencyHz, std::string_view xAxisName)
{
    if (xAxisName == "Current")
    {
        return CurveOf(CurrentLaw(model, frequencyHz));
    }
    if (xAxisName == "Voltage")
    {
        return CurveOf(VoltageLaw(model, ratedVolts, frequencyHz));
    }
    if (xAxisName == "Apparent Power")
    {
        return CurveOf(ApparentPowerLaw(model, ratedVolts, frequencyHz));
    }
    if (xAxisName == "Effective Power")
    {
        return CurveOf(EffectivePowerLaw(model));
    }
    return {};
}

std::variant<Curve, ParameterRefusal> RiseOverFrequency(const PowerModel& model, double ratedVolts,
                                                        std::string_view parameterName, float parameter)
{
    if (parameterName == "Current")
    {
        return RiseByCurrent(model, parameter);
    }
    if (parameterName == "Voltage")
    {
        return RiseByVoltage(model, ratedVolts, parameter);
    }
    if (parameterName == "Apparent Power")
    {
        return RiseByApparentPower(model, ratedVolts, parameter);
    }
    if (parameterName == "Effective Power")
    {
        return RiseByEffectivePower(model, parameter);
    }
    return Curve{};
}

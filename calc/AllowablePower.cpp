#include "calc/AllowablePower.h"

#include "calc/CheckedMath.h"
#include "calc/Log10.h"
#include "calc/Sweep.h"

#include <algorithm>
#include <cmath>

namespace
{
/// Default limits of a logarithmic Y axis around the loads.
void SetLogarithmicAxes(Curve& curve)
{
    const auto [smallest, largest] = std::ranges::minmax_element(curve.YData);
    curve.ExtraValue = *largest;
    curve.Limits = {.XMax = 1e6F, .YMax = 1, .XMin = 1e4F, .YMin = 0.1F};
    if (*smallest > 0)
    {
        curve.Limits.YMax = StoredSingle(std::pow(10.0, std::floor(Log10(*largest)) + 1));
        curve.Limits.YMin = StoredSingle(std::pow(10.0, std::floor(Log10(*smallest))));
    }
}

/// The curve whose load at each frequency is `loadAt(frequencyHz)`.
template <class LoadAt> Curve CurveOverFrequency(LoadAt loadAt)
{
    const auto& sweep = LogFrequencySweep();
    Curve curve{.HasPoints = true, .XData = sweep.XData};
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        curve.YData[i] = StoredSingle(loadAt(sweep.Hz[i]));
    }
    SetLogarithmicAxes(curve);
    return curve;
}
} // namespace

double AllowableVoltageBound(double ratedVolts, double biasVolts)
{
    return biasVolts <= 0.5 * ratedVolts ? 0.354 * ratedVolts : 0.707 * (ratedVolts - biasVolts);
}

Curve AllowableLoad(const PowerModel& model, double voltageBound, double permittedRise,
                    std::string_view yAxisName)
{
    const auto boundedVoltage = [&](double frequencyHz)
    { return VoltageOfRise(permittedRise, model.kV(frequencyHz), model.S3, voltageBound); };

    if (yAxisName == "Current")
    {
        return CurveOverFrequency([&](double frequencyHz)
                                  { return CurrentOfRise(permittedRise, model.kI(frequencyHz)); });
    }
    if (yAxisName == "Voltage")
    {
        return CurveOverFrequency([&](double frequencyHz) { return boundedVoltage(frequencyHz).Volts; });
    }
    if (yAxisName == "Apparent Power")
    {
        return CurveOverFrequency(
            [&](double frequencyHz)
            {
                const double kI = model.kI(frequencyHz);
                const auto [volts, rise] = boundedVoltage(frequencyHz);
                return volts * CurrentOfRise(rise, kI);
            });
    }
    if (yAxisName == "Effective Power")
    {
        return CurveOverFrequency([&](double frequencyHz)
                                  { return CheckedQuotient(boundedVoltage(frequencyHz).Rise, model.Rth); });
    }
    return {};
}

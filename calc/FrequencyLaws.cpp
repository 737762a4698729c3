#include "calc/FrequencyLaws.h"

#include "calc/CheckedMath.h"

#include <algorithm>
#include <cmath>

/// `factor`·(log10 X(i))^`exponent` at every frequency.
static SweepValues PowersOfLog10(double factor, double exponent)
{
    SweepValues values;
    std::ranges::transform(LogFrequencySweep().LnLog10Hz, values.begin(),
                           [=](double ln) { return CheckedFinite(factor * std::exp(exponent * ln)); });
    return values;
}

SweepValues kIOverFrequency(const PowerModel& model)
{
    SweepValues values;
    std::ranges::transform(LogFrequencySweep().Hz, values.begin(),
                           [&](double frequencyHz) { return model.kI(frequencyHz); });
    return values;
}

SweepValues kVOverFrequency(const PowerModel& model)
{
    return PowersOfLog10(model.kVConstant(), model.S2);
}

SweepValues VoltageOverFrequency(const PowerModel& model, double rise)
{
    // kV rises or falls throughout, so that a fault of rise/kV shows at one of the ends.
    const auto& hz = LogFrequencySweep().Hz;
    CheckedQuotient(rise, model.kV(hz.front()));
    CheckedQuotient(rise, model.kV(hz.back()));
    return PowersOfLog10(VoltageOfRise(rise, model.kVConstant(), model.S3), -model.S2 / model.S3);
}

SweepValues BoundedRise(const PowerModel& model, const SweepValues& volts, double rise, double bound)
{
    SweepValues values;
    if (std::ranges::max(volts) < bound)
    {
        values.fill(rise);
        return values;
    }
    const auto kV = kVOverFrequency(model);
    const double power = CheckedPower(bound, model.S3);
    std::ranges::transform(volts, kV, values.begin(),
                           [=](double voltage, double k)
                           { return voltage < bound ? rise : CheckedFinite(k * power); });
    return values;
}

SweepValues ApparentPowerOverFrequency(const PowerModel& model, double rise, double bound)
{
    const auto kI = kIOverFrequency(model);
    const auto volts = VoltageOverFrequency(model, rise);
    auto values = BoundedRise(model, volts, rise, bound);
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        values[i] = std::min(volts[i], bound) * CurrentOfRise(values[i], kI[i]);
    }
    return values;
}

#include "simulation/ModelCheck.h"

#include "calc/Capacitance.h"
#include "calc/CheckedMath.h"
#include "partdata/Availability.h"
#include "simulation/ModelCharge.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace
{
constexpr int voltages = 51;
constexpr int temperatures = 47;
/// Half the distance over which a slope is taken, of the rated voltage.
constexpr double stepShare = 1e-5;

double RatedVolts(const PartRecord& part)
{
    return part.Data[Value::RatedVoltage];
}

double VoltsAt(int index, const PartRecord& part)
{
    return RatedVolts(part) * index / (voltages - 1);
}

/// Evenly over the range, and for a peak that moves where it goes.
std::vector<double> TemperaturesOf(const PartRecord& part)
{
    const auto range = ModelTemperatures(part);
    std::vector<double> celsius;
    for (int i = 0; i < temperatures; ++i)
    {
        celsius.push_back(range.MinC + (double{range.MaxC} - range.MinC) * i / (temperatures - 1));
    }
    if (CapacitanceModelOf(part) == CapacitanceModel::Peaked)
    {
        for (int i = 0; i < voltages; i += 2)
        {
            celsius.push_back(PeakTemperatureAt(part, VoltsAt(i, part)));
        }
    }
    return celsius;
}

/// The capacitance of the charts over the nominal one.
double RelativeCapacitance(const PartRecord& part, double volts, double celsius)
{
    const auto point = CapacitancePointAt(part, volts, celsius, CodeView::Eia);
    // What a chart cannot hold is none.
    StoredSingle(point->PicoFarads);
    return CheckedFinite(point->PicoFarads / double{part.Data[Value::NominalCapacitance]});
}

/// The largest deviation at one temperature; nothing where a capacitance is not positive.
std::optional<double> DeviationAt(const PartRecord& part, double celsius)
{
    const auto charge = ModelChargeAt(part, celsius);
    const double step = stepShare * RatedVolts(part);
    double worst = 0;
    for (int i = 0; i < voltages; ++i)
    {
        const double volts = VoltsAt(i, part);
        if (!(RelativeCapacitance(part, volts, celsius) > 0))
        {
            return std::nullopt;
        }
        const double inside = std::clamp(volts, step, RatedVolts(part) - step);
        const double slope = (charge(inside + step) - charge(inside - step)) / (2 * step);
        worst =
            std::max(worst, std::abs(CheckedFinite(slope / RelativeCapacitance(part, inside, celsius)) - 1));
    }
    return worst;
}

bool IsPositive(float value)
{
    return std::isfinite(value) && value > 0;
}

/// What can be told without a calculation.
std::optional<ModelRefusal> RefuseRecord(const PartRecord& part)
{
    if (!HasData(part, Values::OfCapacitance))
    {
        return ModelRefusal::NoCapacitanceData;
    }
    if (CapacitanceModelOf(part) == CapacitanceModel::None)
    {
        return ModelRefusal::UnknownCharacteristic;
    }
    const bool hasRatings =
        IsPositive(part.Data[Value::NominalCapacitance]) && IsPositive(part.Data[Value::RatedVoltage]);
    return hasRatings ? std::nullopt : std::optional(ModelRefusal::NoRatings);
}
} // namespace

std::variant<double, ModelRefusal> CheckModel(const PartRecord& part)
{
    if (const auto refusal = RefuseRecord(part))
    {
        return *refusal;
    }
    double worst = 0;
    for (const double celsius : TemperaturesOf(part))
    {
        const auto deviation = DeviationAt(part, celsius);
        if (!deviation)
        {
            return ModelRefusal::CapacitanceNotPositive;
        }
        worst = std::max(worst, *deviation);
    }
    return worst <= MostChargeDeviation ? std::variant<double, ModelRefusal>(worst)
                                        : ModelRefusal::ChargeDeviates;
}

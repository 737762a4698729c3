#include "calc/CapacitanceAxes.h"

#include "calc/CheckedMath.h"
#include "calc/Log10.h"
#include "partdata/Characteristic.h"

#include <cmath>
#include <optional>

namespace
{
/// The ends of the axis over the temperatures of a characteristic, or nothing for any other range.
std::optional<TemperatureRange> RoundedRangeOf(const TemperatureRange& range)
{
    for (const auto& characteristic : Characteristics())
    {
        for (std::size_t view = 0; view < CodeForms; ++view)
        {
            if (characteristic.Range[view] == range)
            {
                return characteristic.AxisRange[view];
            }
        }
    }
    return std::nullopt;
}

/// The step of a limit; 0 where there is none.
double StepOf(float limit, Quantity y)
{
    if (y == Quantity::CapacitanceChange)
    {
        return 10;
    }
    if (y != Quantity::Capacitance)
    {
        FailOn(y);
    }
    return limit == 0 ? 0 : std::pow(10.0, std::floor(Log10(std::abs(double{limit}))));
}

/// Makes a limit whole unless its step is a fraction, which a whole number could not show.
float StoredLimit(double limit, double step)
{
    return StoredSingle(step < 1 ? limit : std::nearbyint(limit));
}

float UpperLimit(double largest, double step)
{
    if (step == 0)
    {
        return 0;
    }
    const double steps = largest >= 0 ? std::floor(largest / step) + 1 : std::trunc(largest / step);
    return StoredLimit(steps * step, step);
}

float LowerLimit(double smallest, double step)
{
    return step == 0 ? 0 : StoredLimit(std::floor(smallest / step) * step, step);
}
} // namespace

AxisLimits SetCapacitanceAxes(float xMax, float xMin, float largestY, float smallestY, Quantity y)
{
    AxisLimits limits{.XMax = static_cast<float>(CheckedFinite(xMax)),
                      .YMax = UpperLimit(largestY, StepOf(largestY, y)),
                      .XMin = xMin,
                      .YMin = LowerLimit(smallestY, StepOf(smallestY, y))};
    if (const auto rounded = RoundedRangeOf({.MinC = xMin, .MaxC = xMax}))
    {
        limits.XMax = rounded->MaxC;
        limits.XMin = rounded->MinC;
    }
    return limits;
}

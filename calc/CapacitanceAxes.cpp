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
double StepOf(float limit, std::string_view yAxisName)
{
    if (yAxisName == CapacitanceChangeAxis)
    {
        return 10;
    }
    if (yAxisName != CapacitanceAxis || limit == 0)
    {
        return 0;
    }
    return std::pow(10.0, std::floor(Log10(std::abs(double{limit}))));
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

AxisLimits SetCapacitanceAxes(float xMax, float xMin, float largestY, float smallestY,
                              std::string_view yAxisName)
{
    AxisLimits limits{.XMax = StoredSingle(xMax),
                      .YMax = UpperLimit(largestY, StepOf(largestY, yAxisName)),
                      .XMin = xMin,
                      .YMin = LowerLimit(smallestY, StepOf(smallestY, yAxisName))};
    if (const auto rounded = RoundedRangeOf({.MinC = xMin, .MaxC = xMax}))
    {
        limits.XMax = rounded->MaxC;
        limits.XMin = rounded->MinC;
    }
    return limits;
}

#include "calc/CapacitanceAxes.h"

#include "calc/CheckedMath.h"
#include "calc/Log10.h"

#include <cmath>

namespace
{
struct WidenedRange
{
    float XMax;
    float XMin;
    float WidenedMax;
    float WidenedMin;
};

constexpr WidenedRange widenedRanges[] = {
    {125, -55, 125, -75},
    {85, -55, 100, -75},
    {85, -30, 100, -50},
    {85, -25, 100, -25},
};

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
    for (const auto& range : widenedRanges)
    {
        if (range.XMax == xMax && range.XMin == xMin)
        {
            limits.XMax = range.WidenedMax;
            limits.XMin = range.WidenedMin;
        }
    }
    return limits;
}

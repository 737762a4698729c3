#include "calc/DefaultAxes.h"

#include "calc/Bounds.h"
#include "calc/CheckedMath.h"
#include "calc/Log10.h"

#include <cmath>

/// From here on the Y axis ends at the fixed ceiling.
static constexpr float ceilingFrom = 75;
static constexpr float ceiling = 100;

AxisLimits SetDefaultAxes(float largestX, float xMin, float largestY, float yMin)
{
    const float yMax = largestY < ceilingFrom ? NextTenAbove(largestY) : ceiling;
    return {.XMax = std::floor(largestX) + 1, .YMax = yMax, .XMin = xMin, .YMin = yMin};
}

AxisLimits LogarithmicAxes(float largestY, float smallestY)
{
    AxisLimits limits{.XMax = static_cast<float>(HighestFrequencyHz),
                      .YMax = 1,
                      .XMin = static_cast<float>(LowestFrequencyHz),
                      .YMin = 0.1F};
    if (smallestY > 0)
    {
        limits.YMax = StoredSingle(std::pow(10.0, std::floor(Log10(largestY)) + 1));
        limits.YMin = StoredSingle(std::pow(10.0, std::floor(Log10(smallestY))));
    }
    return limits;
}

float NextTenAbove(float value)
{
    return static_cast<float>(std::floor(double{value} / 10) * 10 + 10);
}

#include "calc/DefaultAxes.h"

#include <cmath>

/// From here on the Y axis ends at the fixed ceiling.
static constexpr float ceilingFrom = 75;
static constexpr float ceiling = 100;

AxisLimits SetDefaultAxes(float largestX, float xMin, float largestY, float yMin)
{
    const float yMax = largestY < ceilingFrom ? NextTenAbove(largestY) : ceiling;
    return {.XMax = std::floor(largestX) + 1, .YMax = yMax, .XMin = xMin, .YMin = yMin};
}

float NextTenAbove(float value)
{
    return static_cast<float>(std::floor(double{value} / 10) * 10 + 10);
}

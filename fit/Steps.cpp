#include "fit/Steps.h"

#include <algorithm>

template <class IsFar> static std::vector<Step> StepsWhere(std::vector<double> readings, IsFar isFar)
{
    std::ranges::sort(readings);
    std::vector<Step> steps;
    for (const double reading : readings)
    {
        if (steps.empty() || isFar(steps.back().Least, reading))
        {
            steps.push_back({reading, reading, 0});
        }
        steps.back().Most = reading;
        ++steps.back().Count;
    }
    return steps;
}

std::vector<Step> StepsOf(std::vector<double> readings, double width)
{
    return StepsWhere(std::move(readings),
                      [width](double first, double reading) { return reading - first > width; });
}

std::vector<Step> RatioStepsOf(std::vector<double> readings, double ratio)
{
    return StepsWhere(std::move(readings),
                      [ratio](double first, double reading) { return reading > first * ratio; });
}

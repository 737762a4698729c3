#include "calc/Sweep.h"

#include "calc/Log10.h"

#include <cmath>

static constexpr double intervals = CurvePoints - 1;

SweepValues LinearSweep(double start, double end)
{
    SweepValues values;
    const double step = (end - start) / intervals;
    double x = start;
    for (double& value : values)
    {
        value = x;
        x += step;
    }
    return values;
}

const SweepValues& LnFractions()
{
    static const SweepValues fractions = []
    {
        SweepValues values{};
        for (std::size_t i = 1; i < CurvePoints; ++i)
        {
            values[i] = std::log(static_cast<double>(i) / intervals);
        }
        return values;
    }();
    return fractions;
}

const FrequencySweep& LogFrequencySweep()
{
    static const FrequencySweep sweep = []
    {
        FrequencySweep values{};
        for (std::size_t i = 0; i < CurvePoints; ++i)
        {
            values.Hz[i] = std::pow(10.0, 4 + 2 * static_cast<double>(i) / intervals);
            values.LnLog10Hz[i] = std::log(Log10(values.Hz[i]));
            values.XData[i] = static_cast<float>(values.Hz[i]);
        }
        return values;
    }();
    return sweep;
}

#include "chart/layout/Divisions.h"

#include "calc/ChartRecord.h"

#include <algorithm>
#include <cmath>

/// To the nearest whole number, halves to even.
static int Rounded(double divisions)
{
    return static_cast<int>(std::nearbyint(std::clamp(divisions, 0.0, double{mostDivisions})));
}

int GetXDivisions(std::int16_t chartType, float xMax, float xMin, bool rescaled)
{
    if (rescaled)
    {
        return 5;
    }
    switch (static_cast<ChartType>(chartType))
    {
    case ChartType::TemperatureRise:
    case ChartType::CapacitanceDCVoltage:
        return 5;
    case ChartType::CapacitanceTemperature:
        return Rounded((double{xMax} - double{xMin}) / 25);
    case ChartType::AllowablePower:
        break;
    }
    return 0;
}

int GetYDivisions(std::int16_t chartType, std::string_view xAxisName, std::string_view yAxisName, float yMax,
                  float yMin, bool rescaled)
{
    if (rescaled)
    {
        return 5;
    }
    switch (static_cast<ChartType>(chartType))
    {
    case ChartType::TemperatureRise:
        return xAxisName == "Frequency" ? 8 : 10;
    case ChartType::CapacitanceTemperature:
    case ChartType::CapacitanceDCVoltage:
        if (yAxisName == "Capacitance")
        {
            return 5;
        }
        if (yAxisName == "Capacitance Change")
        {
            const auto span = double{yMax} - double{yMin};
            return Rounded(span <= 20 ? span / 5 : span / 10);
        }
        break;
    case ChartType::AllowablePower:
        break;
    }
    return 0;
}

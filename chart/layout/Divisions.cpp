#include "chart/layout/Divisions.h"

#include "calc/ChartKinds.h"

/// Divisions of an axis whose range the user has set.
static constexpr int rescaledDivisions = 5;

int GetXDivisions(std::int16_t chartType, float xMax, float xMin, bool rescaled)
{
    if (rescaled)
    {
        return rescaledDivisions;
    }
    const ChartKind* kind = FindChartKind(chartType);
    return kind != nullptr ? kind->Sweeps.front().XDivisions(double{xMax} - double{xMin}) : 0;
}

int GetYDivisions(std::int16_t chartType, std::string_view xAxisName, std::string_view yAxisName, float yMax,
                  float yMin, bool rescaled)
{
    if (rescaled)
    {
        return rescaledDivisions;
    }
    const ChartSweep* sweep = FindSweep(chartType, xAxisName);
    const auto y = FindQuantity(yAxisName);
    return sweep != nullptr && y ? sweep->YDivisions(*y, double{yMax} - double{yMin}) : 0;
}

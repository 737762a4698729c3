#include "chart/drawing/AxisLimits.h"

#include "chart/drawing/Mapping.h"

#include <algorithm>

static bool CanBeNegative(std::string_view quantity)
{
    return quantity == "Temperature" || quantity == "Capacitance Change";
}

/// One span further than the default range on either side.
static PermittedRange OneSpanFurther(std::string_view quantity, float minimum, float maximum)
{
    const float width = maximum - minimum;
    const float span = width > 0 ? width : 1;
    const float lowest = minimum - span;
    return {.Lowest = CanBeNegative(quantity) ? lowest : std::max(lowest, 0.0F), .Highest = maximum + span};
}

PermittedRange PermittedXRange(const ChartKey& chart, const AxisRange& defaultRange)
{
    if (chart.XAxisName == "Frequency")
    {
        return {.Lowest = 10, .Highest = 1000};
    }
    return OneSpanFurther(chart.XAxisName, defaultRange.XMin, defaultRange.XMax);
}

PermittedRange PermittedYRange(const ChartKey& chart, const AxisRange& defaultRange)
{
    if (YAxisKind(chart) == AxisKind::Logarithmic)
    {
        return {.Lowest = defaultRange.YMin / 10, .Highest = defaultRange.YMax * 10};
    }
    return OneSpanFurther(chart.YAxisName, defaultRange.YMin, defaultRange.YMax);
}

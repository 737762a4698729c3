#include "chart/layout/AxisLimits.h"

#include "calc/Bounds.h"
#include "calc/NumberText.h"
#include "calc/Quantities.h"
#include "chart/layout/Mapping.h"

#include <algorithm>
#include <array>
#include <charconv>

/// The decimal that the value stands for, so that the limits read as plainly as the defaults.
static double DecimalOf(float value)
{
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
    double decimal = 0;
    std::from_chars(text.data(), end, decimal);
    return decimal;
}

/// One span further than the default range on either side.
static PermittedRange OneSpanFurther(std::string_view axisName, float minimum, float maximum)
{
    const double least = DecimalOf(minimum);
    const double most = DecimalOf(maximum);
    const double span = most > least ? most - least : 1;
    const auto lowest = static_cast<float>(least - span);
    const bool canBeNegative = KindOf(QuantityNamed(axisName)).CanBeNegative;
    return {.Lowest = canBeNegative ? lowest : std::max(lowest, 0.0F),
            .Highest = static_cast<float>(most + span)};
}

PermittedRange PermittedXRange(const ChartKey& chart, const AxisRange& defaultRange)
{
    const auto quantity = QuantityNamed(chart.XAxisName);
    if (quantity == Quantity::Frequency)
    {
        return {.Lowest = ShownValue(quantity, LowestFrequencyHz),
                .Highest = ShownValue(quantity, HighestFrequencyHz)};
    }
    return OneSpanFurther(chart.XAxisName, defaultRange.XMin, defaultRange.XMax);
}

PermittedRange PermittedYRange(const ChartKey& chart, const AxisRange& defaultRange)
{
    if (YAxisKind(chart) == AxisKind::Logarithmic)
    {
        return {.Lowest = static_cast<float>(DecimalOf(defaultRange.YMin) / 10),
                .Highest = static_cast<float>(DecimalOf(defaultRange.YMax) * 10)};
    }
    return OneSpanFurther(chart.YAxisName, defaultRange.YMin, defaultRange.YMax);
}

std::optional<std::string> RefusalOfRange(std::string_view axis, const std::string& quantity,
                                          const PermittedRange& permitted, float from, float to)
{
    if (permitted.Contains(from) && permitted.Contains(to) && from < to)
    {
        return std::nullopt;
    }
    // Messages show units without the degree sign.
    return "Set " + std::string(axis) + " Range of " + quantity + " from " + NumberText(permitted.Lowest) +
           " to " + NumberText(permitted.Highest) + " " + GetUnit(quantity, {});
}

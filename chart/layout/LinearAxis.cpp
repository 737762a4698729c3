#include "chart/layout/LinearAxis.h"

#include "calc/NumberText.h"

#include <algorithm>
#include <cmath>

std::vector<LinearTick> LinearTicks(float minimum, float maximum, int divisions)
{
    std::vector<LinearTick> ticks;
    if (divisions <= 0 || !(maximum > minimum))
    {
        return ticks;
    }
    const float step = (maximum - minimum) / static_cast<float>(divisions);
    float value = minimum;
    for (int i = 0; i <= divisions; ++i)
    {
        ticks.push_back({i * 100.0 / divisions, value});
        value += step;
    }
    return ticks;
}

XTickLabel LabelOfXTick(float value, float range)
{
    const auto plain = TickText(value, range);
    if (plain.size() < 5)
    {
        return {plain, false};
    }
    return {FormatNumber(value, NumberFormat::ScientificShort), true};
}

/// The format of all labels of a Y axis whose ticks are at these values.
static NumberFormat FormatOfYTicks(const std::vector<double>& values)
{
    double largest = 0;
    for (const double value : values)
    {
        largest = std::max(largest, std::abs(value));
    }
    if (largest >= 1e6 || largest < 0.1)
    {
        return NumberFormat::ScientificShort;
    }
    const bool allWhole =
        std::ranges::all_of(values, [](double value) { return value == std::floor(value); });
    return allWhole ? NumberFormat::WholeTick : NumberFormat::FractionTick;
}

/// True when no neighbours read alike, and the last label reads as the end of the axis.
static bool TellTheAxis(const std::vector<std::string>& labels, double end)
{
    return std::ranges::adjacent_find(labels) == labels.end() && ToldBy(labels.back()) == end;
}

/// By how many decimals a label may go beyond its format: to six digits.
static int MostMoreDecimals(NumberFormat format)
{
    switch (format)
    {
    case NumberFormat::ScientificShort:
        return 3;
    case NumberFormat::FractionTick:
        return 1;
    default:
        return 0;
    }
}

std::vector<std::string> LabelsOfYTicks(const std::vector<LinearTick>& ticks, float minimum, float maximum)
{
    const double range = static_cast<double>(maximum) - minimum;
    std::vector<double> values;
    for (const auto& tick : ticks)
    {
        values.push_back(ToldBy(TickText(minimum + tick.At / 100 * range, range)));
    }
    const auto format = FormatOfYTicks(values);
    std::vector<std::string> labels(values.size());
    for (int more = 0; more <= MostMoreDecimals(format); ++more)
    {
        std::ranges::transform(values, labels.begin(),
                               [&](double value)
                               { return value == 0 ? "0" : FormatTick(value, format, more); });
        if (labels.empty() || TellTheAxis(labels, values.back()))
        {
            break;
        }
    }
    return labels;
}

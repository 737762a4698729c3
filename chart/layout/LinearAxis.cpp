#include "chart/layout/LinearAxis.h"

#include "calc/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>

static std::string ExponentText(float value)
{
    return FormatNumber(value, NumberFormat::ScientificShort);
}

/// The number that a text of ours tells.
static double NumberOf(std::string_view text)
{
    double number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

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
    return {ExponentText(value), true};
}

/// True when two decimals of the mantissa tell the value as exactly as its plain text does.
static bool FitsExponentText(std::string_view plain, float value)
{
    const auto exact = NumberOf(plain);
    return std::abs(NumberOf(ExponentText(value)) - exact) <= 1e-9 * std::abs(exact);
}

std::vector<std::string> LabelsOfYTicks(const std::vector<LinearTick>& ticks, float range)
{
    std::vector<std::string> labels;
    std::size_t longest = 0;
    float largest = 0;
    bool exponentsExact = true;
    for (const auto& tick : ticks)
    {
        const auto plain = TickText(tick.Value, range);
        longest = std::max(longest, plain.size());
        largest = std::max(largest, std::abs(tick.Value));
        exponentsExact = exponentsExact && FitsExponentText(plain, tick.Value);
        labels.push_back(plain);
    }
    if (longest <= 6 && largest >= 0.1F)
    {
        return labels;
    }
    for (std::size_t i = 0; i < ticks.size(); ++i)
    {
        const bool kept = exponentsExact ? labels[i] == "0" : labels[i].size() <= 7;
        if (!kept)
        {
            labels[i] = ExponentText(ticks[i].Value);
        }
    }
    return labels;
}

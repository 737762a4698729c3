#include "chart/drawing/LinearAxis.h"

#include "calc/NumberText.h"

#include <algorithm>
#include <cmath>

static QString PlainText(float value, float range)
{
    return QString::fromStdString(TickText(value, range));
}

static QString ExponentText(float value)
{
    return QString::fromStdString(FormatNumber(value, NumberFormat::ScientificShort));
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
    const auto plain = PlainText(value, range);
    if (plain.size() < 5)
    {
        return {plain, false};
    }
    return {ExponentText(value), true};
}

/// True when two decimals of the mantissa tell the value as exactly as its plain text does.
static bool FitsExponentText(const QString& plain, float value)
{
    const auto exact = plain.toDouble();
    return std::abs(ExponentText(value).toDouble() - exact) <= 1e-9 * std::abs(exact);
}

std::vector<QString> LabelsOfYTicks(const std::vector<LinearTick>& ticks, float range)
{
    std::vector<QString> labels;
    qsizetype longest = 0;
    float largest = 0;
    bool exponentsExact = true;
    for (const auto& tick : ticks)
    {
        const auto plain = PlainText(tick.Value, range);
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
        const bool kept = exponentsExact ? labels[i] == QLatin1String("0") : labels[i].size() <= 7;
        if (!kept)
        {
            labels[i] = ExponentText(ticks[i].Value);
        }
    }
    return labels;
}

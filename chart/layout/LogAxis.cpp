#include "chart/layout/LogAxis.h"

#include "calc/Log10.h"
#include "calc/NumberText.h"
#include "chart/layout/Mapping.h"

#include <algorithm>
#include <cmath>

/// Lines this near the plot area, in plot units, count as inside: singles round.
static constexpr double edgeTolerance = 0.001;
/// A common logarithm this near a whole number is that number: singles round.
static constexpr double decadeTolerance = 1e-6;

static bool IsInside(double at)
{
    return at >= -edgeTolerance && at <= 100 + edgeTolerance;
}

static std::vector<LogLine> GridOf(const AxisMapping& axis, int firstDecade, int lastDecade)
{
    std::vector<LogLine> lines;
    for (int decade = firstDecade; decade < lastDecade; ++decade)
    {
        for (int j = 2; j <= 10; ++j)
        {
            const auto at = axis.Position(j * std::pow(10.0, decade));
            if (IsInside(at))
            {
                lines.push_back({std::clamp(at, 0.0, 100.0), j == 10});
            }
        }
    }
    return lines;
}

static std::vector<LogLabel> LabelsOf(const AxisMapping& axis, int firstDecade, int lastDecade)
{
    std::vector<LogLabel> labels;
    for (int decade = firstDecade; decade <= lastDecade; ++decade)
    {
        const auto value = std::pow(10.0, decade);
        const auto at = axis.Position(value);
        if (IsInside(at))
        {
            labels.push_back({std::clamp(at, 0.0, 100.0), value, false});
        }
    }
    return labels;
}

/// Adds both ends of the range, except one that is labelled as a power of ten.
static void LabelRangeEnds(std::vector<LogLabel>& labels, float minimum, float maximum)
{
    if (labels.empty() || labels.front().At > edgeTolerance)
    {
        labels.insert(labels.begin(), {0, minimum, true});
    }
    if (labels.back().At < 100 - edgeTolerance)
    {
        labels.push_back({100, maximum, true});
    }
}

LogTicks LogarithmicTicks(float minimum, float maximum)
{
    const AxisMapping axis(AxisKind::Logarithmic, minimum, maximum);
    if (!axis.HasExtent())
    {
        return {};
    }
    const auto firstDecade = static_cast<int>(std::floor(Log10(minimum) + decadeTolerance));
    const auto lastDecade = static_cast<int>(std::ceil(Log10(maximum) - decadeTolerance));
    LogTicks ticks{GridOf(axis, firstDecade, lastDecade), LabelsOf(axis, firstDecade, lastDecade)};
    if (Log10(maximum) - Log10(minimum) < 2 - decadeTolerance)
    {
        LabelRangeEnds(ticks.Labels, minimum, maximum);
    }
    return ticks;
}

std::string LabelOfLogTick(double value)
{
    auto text = TickText(value, value);
    const auto told = ToldBy(text);
    if (told >= 0.001 && told < 1e6)
    {
        return text;
    }
    constexpr int mostMoreDecimals = 3;
    int more = 0;
    do
    {
        text = FormatTick(told, NumberFormat::ScientificShort, more);
    } while (ToldBy(text) != told && ++more <= mostMoreDecimals);
    return text;
}

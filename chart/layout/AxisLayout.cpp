#include "chart/layout/AxisLayout.h"

#include "calc/Quantities.h"
#include "chart/layout/Colors.h"
#include "chart/layout/Divisions.h"
#include "chart/layout/LinearAxis.h"
#include "chart/layout/LogAxis.h"
#include "chart/layout/Mapping.h"

#include <algorithm>
#include <utility>

namespace
{

/// Top of the labels below the X axis.
constexpr double xLabelTop = -0.5;
/// How far right of the axis' left end, negative, the first X label begins.
constexpr double firstXLabelLeft = -2;
/// Least distance between neighbouring X labels.
constexpr double xLabelGap = 0.8;
/// Distance of Y labels from the axis: they stay clear of the first X label, which begins 2 units left of it.
constexpr double yLabelGap = 2.8;
/// Least distance of Y labels from the title at the left edge; the widest come nearer to the axis for it.
constexpr double titleGap = 0.5;
/// How near to the axis they come, before they are condensed.
constexpr double leastYLabelGap = 0.5;

/// A label and the stretch of its axis that it takes.
struct Candidate
{
    double Low;
    double High;
    AxisLabel Label;
    /// Gives way to a neighbour rather than thinning out all labels.
    bool Yields = false;
};

bool Touch(const Candidate& a, const Candidate& b, double gap)
{
    return b.Low - a.High < gap;
}

/// Of neighbours that read alike to six digits only the last stands.
void DropLastThatReads(const std::string& text, std::vector<Candidate>& candidates)
{
    if (!candidates.empty() && candidates.back().Label.Text == text)
    {
        candidates.pop_back();
    }
}

/// True when every `step`-th label from the first on has its place.
bool StandsClear(const std::vector<Candidate>& candidates, std::size_t step, double gap)
{
    for (std::size_t i = step; i < candidates.size(); i += step)
    {
        if (Touch(candidates[i - step], candidates[i], gap))
        {
            return false;
        }
    }
    return true;
}

/// The labels that can stand beside each other: all, or every second, third and so on. Yielding ends go
/// first.
std::vector<AxisLabel> ReadableLabels(std::vector<Candidate> candidates, double gap)
{
    if (candidates.size() > 1 && candidates.back().Yields &&
        Touch(*(candidates.end() - 2), candidates.back(), gap))
    {
        candidates.pop_back();
    }
    if (candidates.size() > 1 && candidates[0].Yields && Touch(candidates[0], candidates[1], gap))
    {
        candidates.erase(candidates.begin());
    }
    std::size_t step = 1;
    while (!StandsClear(candidates, step, gap))
    {
        ++step;
    }
    std::vector<AxisLabel> labels;
    for (std::size_t i = 0; i < candidates.size(); i += step)
    {
        labels.push_back(std::move(candidates[i].Label));
    }
    return labels;
}

std::vector<GridLine> LogGrid(const LogTicks& ticks)
{
    std::vector<GridLine> grid;
    grid.reserve(ticks.Lines.size());
    for (const auto& line : ticks.Lines)
    {
        grid.push_back({line.At, line.Decade ? frameColor : minorGridColor});
    }
    return grid;
}

std::vector<GridLine> LinearGrid(const std::vector<LinearTick>& ticks)
{
    std::vector<GridLine> grid;
    grid.reserve(ticks.size());
    for (const auto& tick : ticks)
    {
        grid.push_back({tick.At, gridColor});
    }
    return grid;
}

/// A label below the X axis, moved left where it would leave the surface.
Candidate BelowXAxis(double left, const std::string& text, const ChartSurface& surface)
{
    const auto& scale = surface.Scale();
    const auto width = surface.TextWidth(text);
    left = std::min(left, scale.ScaleLeft + scale.ScaleWidth - width);
    return {left, left + width, {left, xLabelTop, text}};
}

/// Places labels left of the Y axis: right-aligned, each centred on its tick.
class YLabelPlacer
{
public:
    YLabelPlacer(const std::vector<AxisLabel>& xLabels, const ChartSurface& chartSurface)
        : surface(chartSurface)
        , height(chartSurface.TextHeight())
        , leftmost(chartSurface.Scale().ScaleLeft)
        , xLabelsLeft(xLabels.empty() ? 0 : xLabels.front().X)
    {
        if (surface.Kind() == SurfaceKind::Screen)
        {
            leftmost += surface.UpwardsTextWidth() + titleGap;
        }
    }

    void Add(double at, const std::string& text, bool yields = false)
    {
        DropLastThatReads(text, candidates);
        const auto width = surface.TextWidth(text);
        widest = std::max(widest, width);
        candidates.push_back({at - height / 2, at + height / 2, {-width, at + height / 2, text}, yields});
    }

    /// The labels that can stand. One that would touch the first X label is raised above it.
    std::vector<AxisLabel> Place()
    {
        const auto room = -leastYLabelGap - leftmost;
        const auto across = std::min(1.0, room / widest);
        const auto right = std::max(-yLabelGap, leftmost + across * widest);
        for (auto& candidate : candidates)
        {
            candidate.Label.Across = across;
            candidate.Label.X *= across;
            if (right > xLabelsLeft)
            {
                candidate.High = std::max(candidate.High, xLabelTop + height);
                candidate.Low = candidate.High - height;
            }
            candidate.Label.X += right;
            candidate.Label.Y = candidate.High;
        }
        return ReadableLabels(std::move(candidates), 0);
    }

private:
    const ChartSurface& surface;
    double height;
    double leftmost;
    double xLabelsLeft;
    double widest = 0;
    std::vector<Candidate> candidates;
};

AxisLayout LayOutLogX(const AxisRange& range, float unit, const ChartSurface& surface)
{
    const auto ticks = LogarithmicTicks(range.XMin, range.XMax);
    std::vector<Candidate> candidates;
    for (const auto& label : ticks.Labels)
    {
        const auto text = LabelOfLogTick(label.Value / unit);
        DropLastThatReads(text, candidates);
        const auto left = std::max(label.At - surface.TextWidth(text) / 2, firstXLabelLeft);
        candidates.push_back(BelowXAxis(left, text, surface));
        candidates.back().Yields = label.RangeEnd;
    }
    return {LogGrid(ticks), ReadableLabels(std::move(candidates), xLabelGap)};
}

AxisLayout LayOutLinearX(const ChartView& view, float unit, const ChartSurface& surface)
{
    const auto& range = view.Range;
    const auto divisions = GetXDivisions(view.Chart.ChartType, range.XMax, range.XMin, view.Rescaled);
    const auto ticks = LinearTicks(range.XMin, range.XMax, divisions);
    std::vector<Candidate> candidates;
    for (const auto& tick : ticks)
    {
        const auto label = LabelOfXTick(tick.Value / unit, (range.XMax - range.XMin) / unit);
        auto left = tick.At - (candidates.empty() ? 2 : 4);
        left -= label.Exponent ? 4 : 0;
        candidates.push_back(BelowXAxis(left, label.Text, surface));
    }
    return {LinearGrid(ticks), ReadableLabels(std::move(candidates), xLabelGap)};
}

AxisLayout LayOutLogY(const AxisRange& range, YLabelPlacer placer)
{
    const auto ticks = LogarithmicTicks(range.YMin, range.YMax);
    for (const auto& label : ticks.Labels)
    {
        placer.Add(label.At, LabelOfLogTick(label.Value), label.RangeEnd);
    }
    return {LogGrid(ticks), placer.Place()};
}

AxisLayout LayOutLinearY(const ChartView& view, YLabelPlacer placer)
{
    const auto& range = view.Range;
    const auto divisions = GetYDivisions(view.Chart.ChartType, view.Chart.XAxisName, view.Chart.YAxisName,
                                         range.YMax, range.YMin, view.Rescaled);
    const auto ticks = LinearTicks(range.YMin, range.YMax, divisions);
    const auto texts = LabelsOfYTicks(ticks, range.YMin, range.YMax);
    for (std::size_t i = 0; i < ticks.size(); ++i)
    {
        placer.Add(ticks[i].At, texts[i]);
    }
    return {LinearGrid(ticks), placer.Place()};
}

} // namespace

AxisLayout LayOutXAxis(const ChartView& view, const ChartSurface& surface)
{
    const auto unit = KindOf(QuantityNamed(view.Chart.XAxisName)).StoredPerShown;
    if (XAxisKind(view.Chart) == AxisKind::Logarithmic)
    {
        return LayOutLogX(view.Range, unit, surface);
    }
    return LayOutLinearX(view, unit, surface);
}

AxisLayout LayOutYAxis(const ChartView& view, const std::vector<AxisLabel>& xLabels,
                       const ChartSurface& surface)
{
    YLabelPlacer placer(xLabels, surface);
    if (YAxisKind(view.Chart) == AxisKind::Logarithmic)
    {
        return LayOutLogY(view.Range, std::move(placer));
    }
    return LayOutLinearY(view, std::move(placer));
}

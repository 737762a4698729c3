#include "requests/PlotOnSheet.h"

#include "chart/layout/ChartDrawing.h"
#include "chart/layout/FittingSteps.h"
#include "stress/PrefixedText.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace
{
constexpr double xTickDistance = 50;
constexpr double yTickDistance = 28;
constexpr double minorDistance = 15;
constexpr double labelGap = 1.5;

FittingTicks TicksAtPowersOfTen(const FittingScale& scale)
{
    FittingTicks ticks;
    for (double hertz = scale.Low; hertz <= scale.High * (1 + FittingScale::Tolerance); hertz *= 10)
    {
        ticks.Ticks.push_back({scale.PositionOf(hertz), PrefixedText(hertz, "Hz", 3)});
        for (int minor = 1; minor < 10; ++minor)
        {
            ticks.Grid.push_back(
                {scale.PositionOf(hertz * minor), minor == 1 ? fittingDecadeColor : fittingMinorColor});
        }
    }
    return ticks;
}
} // namespace

PlotOnSheet::PlotOnSheet(const Box& place, PlotAxis across, PlotAxis upwards, SheetSurface& surface)
    : box(place)
    , xAxis(std::move(across))
    , yAxis(std::move(upwards))
    , sheet(surface)
    , chart(surface.Chart(place))
{
}

double PlotOnSheet::PlotWidth() const
{
    return 100 * box.Width / std::abs(chartScale.ScaleWidth);
}

double PlotOnSheet::PlotHeight() const
{
    return 100 * box.Height / std::abs(chartScale.ScaleHeight);
}

FittingScale PlotOnSheet::Scale(const PlotAxis& axis, double length) const
{
    return {.Kind = axis.Kind,
            .Low = axis.Low,
            .High = axis.High,
            .Length = length,
            .TickDistance = &axis == &xAxis ? xTickDistance : yTickDistance,
            .MinorDistance = minorDistance};
}

FittingTicks PlotOnSheet::TicksOf(const PlotAxis& axis, double length) const
{
    const auto scale = Scale(axis, length);
    return axis.Kind == AxisKind::Logarithmic ? TicksAtPowersOfTen(scale)
                                              : TicksAtSteps(scale, StepSizes::Fifths);
}

void PlotOnSheet::Fill(double fromX, double toX, double toY, const Color& color)
{
    const double left = XPosition(fromX);
    const double top = Scale(yAxis, PlotHeight()).PositionOf(toY);
    const double perX = box.Width / chartScale.ScaleWidth;
    const double perY = box.Height / chartScale.ScaleHeight;
    sheet.Fill({box.Left + (left - chartScale.ScaleLeft) * perX, box.Top + (top - chartScale.ScaleTop) * perY,
                (XPosition(toX) - left) * perX, -top * perY},
               color);
}

void PlotOnSheet::Hatch(double fromX, double toX, const Color& color)
{
    constexpr double pixels = 9;
    const double left = XPosition(fromX);
    const double right = XPosition(toX);
    // How far a line that rises through the whole plot at 45 degrees goes to the right.
    const double slant = 100 * PlotHeight() / PlotWidth();
    const double step = 100 * pixels / PlotWidth();
    for (double foot = left - slant + step; foot < right; foot += step)
    {
        const double from = std::max(foot, left);
        const double to = std::min(foot + slant, right);
        chart.Line(from, (from - foot) / slant * 100, to, (to - foot) / slant * 100, color);
    }
}

void PlotOnSheet::Mark(double x, const Color& color)
{
    chart.Line(XPosition(x), 0, XPosition(x), 100, color);
}

void PlotOnSheet::DrawAxes()
{
    ChartAxes axes;
    const auto across = TicksOf(xAxis, PlotWidth());
    const auto upwards = TicksOf(yAxis, PlotHeight());
    for (const auto& line : across.Grid)
    {
        axes.Lines.push_back({true, line});
    }
    for (const auto& line : upwards.Grid)
    {
        axes.Lines.push_back({false, line});
    }
    for (const auto& tick : across.Ticks)
    {
        axes.Texts.push_back({{tick.At - chart.TextWidth(tick.Text) / 2, -labelGap, tick.Text}});
    }
    for (const auto& tick : upwards.Ticks)
    {
        axes.Texts.push_back(
            {{-labelGap - chart.TextWidth(tick.Text), tick.At + chart.TextHeight() / 2, tick.Text}});
    }
    axes.Texts.push_back(
        {{50 - chart.TextWidth(xAxis.Title) / 2, -labelGap - chart.TextHeight(), xAxis.Title}});
    axes.Texts.push_back({{chartScale.ScaleLeft + labelGap, 50, yAxis.Title}, true});
    ::DrawAxes(axes, chart);
}

void PlotOnSheet::Curve(std::span<const Point> values)
{
    const auto yScale = Scale(yAxis, PlotHeight());
    const auto xScale = Scale(xAxis, PlotWidth());
    std::vector<Point> places;
    places.reserve(values.size());
    for (const auto& [x, y] : values)
    {
        places.push_back({xScale.PositionOf(x), yScale.PositionOf(y)});
    }
    chart.Polyline(places, LookOfCurve(chart, 0).Color);
}

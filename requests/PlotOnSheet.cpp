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
/// Around the plot, for labels and titles, in device-independent pixels as all that follows.
constexpr double leftMargin = 52;
constexpr double rightMargin = 18;
constexpr double topMargin = 8;
constexpr double bottomMargin = 32;
constexpr double labelGap = 3;

/// The scale of a chart whose plot leaves the margins free.
UserScale ScaleWithMargins(const Box& box)
{
    const double perX = 100 / (box.Width - leftMargin - rightMargin);
    const double perY = 100 / (box.Height - topMargin - bottomMargin);
    return {-leftMargin * perX, 100 + topMargin * perY, box.Width * perX, -box.Height * perY};
}

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
    , scale(ScaleWithMargins(place))
    , xAxis(std::move(across))
    , yAxis(std::move(upwards))
    , sheet(surface)
    , chart(surface.Chart(place, scale))
{
}

double PlotOnSheet::PlotWidth() const
{
    return 100 * box.Width / std::abs(scale.ScaleWidth);
}

double PlotOnSheet::PlotHeight() const
{
    return 100 * box.Height / std::abs(scale.ScaleHeight);
}

FittingScale PlotOnSheet::ScaleOf(const PlotAxis& axis, double length) const
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
    const auto places = ScaleOf(axis, length);
    return axis.Kind == AxisKind::Logarithmic ? TicksAtPowersOfTen(places)
                                              : TicksAtSteps(places, StepSizes::Fifths);
}

void PlotOnSheet::Fill(double fromX, double toX, double toY, const Color& color)
{
    const double left = XPosition(fromX);
    const double top = ScaleOf(yAxis, PlotHeight()).PositionOf(toY);
    const double perX = box.Width / scale.ScaleWidth;
    const double perY = box.Height / scale.ScaleHeight;
    sheet.Fill({box.Left + (left - scale.ScaleLeft) * perX, box.Top + (top - scale.ScaleTop) * perY,
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
    const double gapX = 100 * labelGap / PlotWidth();
    const double gapY = 100 * labelGap / PlotHeight();
    for (const auto& tick : across.Ticks)
    {
        axes.Texts.push_back({{tick.At - chart.TextWidth(tick.Text) / 2, -gapY, tick.Text}});
    }
    for (const auto& tick : upwards.Ticks)
    {
        axes.Texts.push_back(
            {{-gapX - chart.TextWidth(tick.Text), tick.At + chart.TextHeight() / 2, tick.Text}});
    }
    axes.Texts.push_back({{50 - chart.TextWidth(xAxis.Title) / 2, -gapY - chart.TextHeight(), xAxis.Title}});
    if (sheet.TextWidth(yAxis.Title) <= box.Height)
    {
        axes.Texts.push_back({{scale.ScaleLeft + gapX, 50, yAxis.Title}, true});
    }
    ::DrawAxes(axes, chart);
}

void PlotOnSheet::Curve(std::span<const Point> values)
{
    const auto yScale = ScaleOf(yAxis, PlotHeight());
    const auto xScale = ScaleOf(xAxis, PlotWidth());
    std::vector<Point> places;
    places.reserve(values.size());
    for (const auto& [x, y] : values)
    {
        places.push_back({xScale.PositionOf(x), yScale.PositionOf(y)});
    }
    chart.Polyline(places, LookOfCurve(chart, 0).Color);
}

#include "ownparts/FitSheet.h"

#include "chart/layout/ChartDrawing.h"
#include "chart/layout/Mapping.h"
#include "ownparts/ReportTexts.h"
#include "partdata/OneLine.h"
#include "partdata/Windows1252.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr double ChartWidth = 375;
constexpr double Margin = 8;
constexpr double TitleHeight = 22;
constexpr double LegendHeight = 18;
constexpr double ChartHeight = 270;
constexpr double StripHeight = FitSheetHeight - TitleHeight - LegendHeight - ChartHeight - Margin;
constexpr double CrossPixels = 4;
constexpr Color White = {255, 255, 255};

/// A cross at a place of the plot, as large in any box.
void DrawCross(double x, double y, const Box& box, const Color& color, ChartSurface& surface)
{
    const double across = CrossPixels * std::abs(chartScale.ScaleWidth) / box.Width;
    const double up = CrossPixels * std::abs(chartScale.ScaleHeight) / box.Height;
    surface.Line(x - across, y - up, x + across, y + up, color);
    surface.Line(x - across, y + up, x + across, y - up, color);
}

/// The largest residual that a strip shows, as a share.
double StripEnd(const FitChart& chart)
{
    double largest = 0;
    for (const auto& sweep : chart.Sweeps)
    {
        for (const auto& point : sweep.Points)
        {
            largest = std::max(largest, std::abs(point.Point.Residual()));
        }
    }
    for (const double end : {0.05, 0.1, 0.2, 0.5, 1.0})
    {
        if (largest <= end)
        {
            return end;
        }
    }
    return largest;
}

void DrawLegend(const FitChart& chart, const Box& box, ChartSurface& colors, SheetSurface& sheet)
{
    double left = box.Left + 60;
    int position = 0;
    for (const auto& sweep : chart.Sweeps)
    {
        const double width = std::min(sheet.TextWidth(sweep.Label) + 2, box.Left + box.Width - left);
        sheet.Text({left, box.Top, std::max(width, 1.0), LegendHeight}, sweep.Label,
                   LookOfCurve(colors, position++).Color);
        left += width + 12;
    }
}

void DrawChart(FitChart& chart, const Box& box, ChartSurface& surface)
{
    std::vector<ChartRecord> lines;
    for (const auto& sweep : chart.Sweeps)
    {
        lines.push_back(sweep.Line);
    }
    PlaceCurves(chart.View, lines);
    DrawAxes(chart.View, surface);
    DrawCurves(chart.View, lines, surface);
    const auto& range = chart.View.Range;
    const AxisMapping xAxis(XAxisKind(chart.View.Chart), range.XMin, range.XMax);
    const AxisMapping yAxis(YAxisKind(chart.View.Chart), range.YMin, range.YMax);
    int position = 0;
    for (const auto& sweep : chart.Sweeps)
    {
        const auto color = LookOfCurve(surface, position++).Color;
        for (const auto& point : sweep.Points)
        {
            DrawCross(xAxis.Position(point.X), yAxis.Position(point.Point.Measured), box, color, surface);
        }
    }
}

/// A residual's place in a strip: 50 in the middle.
double StripPosition(double residual, double end)
{
    return 50 + 50 * residual / end;
}

void DrawStripAxis(double end, ChartSurface& surface)
{
    for (const double share : {-1.0, 0.0, 1.0})
    {
        const double y = StripPosition(share * end, end);
        surface.Line(0, y, 100, y, share == 0 ? frameColor : gridColor);
        const auto text = SignedPercent(share * end, 0);
        surface.Text(-2 - surface.TextWidth(text), y + surface.TextHeight() / 2, text, frameColor);
    }
    surface.Line(0, 0, 0, 100, frameColor);
    surface.Line(100, 0, 100, 100, frameColor);
}

void DrawStrip(const FitChart& chart, const Box& box, ChartSurface& surface)
{
    const double end = StripEnd(chart);
    DrawStripAxis(end, surface);
    const AxisMapping xAxis(XAxisKind(chart.View.Chart), chart.View.Range.XMin, chart.View.Range.XMax);
    int position = 0;
    for (const auto& sweep : chart.Sweeps)
    {
        const auto color = LookOfCurve(surface, position++).Color;
        for (const auto& point : sweep.Points)
        {
            DrawCross(xAxis.Position(point.X), StripPosition(point.Point.Residual(), end), box, color,
                      surface);
        }
    }
}

std::string TitleOf(const FittedPart& fitted)
{
    return WithoutControls(Utf8FromWindows1252(fitted.Row.Names[0])) +
           ": measured points over the curves of the part, and below how far the curves are off";
}
} // namespace

double FitSheetWidth(std::size_t charts)
{
    return 2 * Margin + ChartWidth * static_cast<double>(std::max<std::size_t>(charts, 1));
}

void DrawFitSheet(const FittedPart& fitted, std::vector<FitChart> charts, SheetSurface& sheet)
{
    const double width = FitSheetWidth(charts.size());
    sheet.Fill({0, 0, width, FitSheetHeight}, White);
    double left = Margin;
    for (auto& chart : charts)
    {
        const Box box = {left, TitleHeight + LegendHeight, ChartWidth, ChartHeight};
        auto& surface = sheet.Chart(box, chartScale);
        DrawChart(chart, box, surface);
        DrawLegend(chart, {left, TitleHeight, ChartWidth, LegendHeight}, surface, sheet);
        const Box strip = {left, box.Top + ChartHeight, ChartWidth, StripHeight};
        DrawStrip(chart, strip, sheet.Chart(strip, chartScale));
        left += ChartWidth;
    }
    sheet.Text({Margin, 4, width - 2 * Margin, TitleHeight}, TitleOf(fitted), frameColor);
}

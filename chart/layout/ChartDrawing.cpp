#include "chart/layout/ChartDrawing.h"

#include "calc/Bounds.h"
#include "calc/ChartKinds.h"
#include "calc/NumberText.h"
#include "chart/layout/AxisLayout.h"
#include "chart/layout/Colors.h"
#include "chart/layout/Mapping.h"

#include <algorithm>
#include <cmath>
#include <vector>

AxisRange DefaultRange(const ChartKey& chart, std::span<const ChartRecord> lines)
{
    AxisRange range{};
    bool first = true;
    for (const auto& line : lines)
    {
        if (!BelongsTo(line, chart))
        {
            continue;
        }
        if (first)
        {
            range = {line.XMax, line.YMax, line.XMin, line.YMin};
            first = false;
        }
        range.XMax = std::max(range.XMax, line.XMax);
        range.YMax = std::max(range.YMax, line.YMax);
        range.XMin = std::min(range.XMin, line.XMin);
        range.YMin = std::min(range.YMin, line.YMin);
    }
    return range;
}

static void DrawGrid(const AxisLayout& xAxis, const AxisLayout& yAxis, ChartSurface& surface)
{
    for (const auto& line : xAxis.Grid)
    {
        surface.Line(line.At, 0, line.At, 100, line.Color);
    }
    for (const auto& line : yAxis.Grid)
    {
        surface.Line(0, line.At, 100, line.At, line.Color);
    }
}

static void DrawFrame(ChartSurface& surface)
{
    surface.Line(0, 0, 100, 0, frameColor);
    surface.Line(100, 0, 100, 100, frameColor);
    surface.Line(100, 100, 0, 100, frameColor);
    surface.Line(0, 100, 0, 0, frameColor);
}

static void DrawLabels(const AxisLayout& axis, ChartSurface& surface)
{
    for (const auto& label : axis.Labels)
    {
        surface.Text(label.X, label.Y, label.Text, frameColor);
    }
}

static void DrawTitles(const ChartView& view, ChartSurface& surface)
{
    const auto& xName = view.Chart.XAxisName;
    const auto& yName = view.Chart.YAxisName;
    surface.Text(35, -7, xName + ' ' + GetUnit(xName, view.DegreeSign), frameColor);
    const auto yUnit = GetUnit(yName, view.DegreeSign);
    if (surface.Kind() == SurfaceKind::Screen)
    {
        surface.TextUpwards(surface.Scale().ScaleLeft, 50, yName + ' ' + yUnit, frameColor);
    }
    else
    {
        surface.Text(0, 107.5, yUnit, frameColor);
    }
    const ChartKind* kind = FindChartKind(view.Chart.ChartType);
    if (kind != nullptr && kind->RecommendsRise)
    {
        surface.Text(10, 107.3,
                     "-Recommendation of temp. Rise is within " + NumberText(RecommendedRise) +
                         UnitOf(Quantity::TemperatureRise, view.DegreeSign) + "-",
                     frameColor);
    }
}

void DrawAxes(const ChartView& view, ChartSurface& surface)
{
    const auto xAxis = LayOutXAxis(view, surface);
    const auto yAxis = LayOutYAxis(view, xAxis.Labels, surface);
    DrawGrid(xAxis, yAxis, surface);
    DrawFrame(surface);
    DrawLabels(xAxis, surface);
    DrawLabels(yAxis, surface);
    DrawTitles(view, surface);
}

void PlaceCurves(const ChartView& view, std::span<ChartRecord> lines)
{
    const AxisMapping xAxis(XAxisKind(view.Chart), view.Range.XMin, view.Range.XMax);
    const AxisMapping yAxis(YAxisKind(view.Chart), view.Range.YMin, view.Range.YMax);
    for (auto& line : lines)
    {
        if (!BelongsTo(line, view.Chart))
        {
            continue;
        }
        for (std::size_t i = 0; i < CurvePoints; ++i)
        {
            line.XPos[i] = static_cast<float>(xAxis.Position(line.XData[i]));
            line.YPos[i] = static_cast<float>(yAxis.Position(line.YData[i]));
        }
    }
}

/// Draws each run of consecutive points inside the range as one polyline.
static void DrawCurve(const ChartRecord& line, const AxisMapping& xAxis, const AxisMapping& yAxis,
                      const Color& color, ChartSurface& surface)
{
    std::vector<Point> run;
    run.reserve(CurvePoints);
    const auto finishRun = [&]
    {
        if (run.size() > 1)
        {
            surface.Polyline(run, color);
        }
        run.clear();
    };
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        if (xAxis.Contains(line.XData[i]) && yAxis.Contains(line.YData[i]))
        {
            run.push_back({line.XPos[i], line.YPos[i]});
        }
        else
        {
            finishRun();
        }
    }
    finishRun();
}

CurveLook LookOfCurve(const ChartSurface& surface, int position)
{
    if (surface.Kind() == SurfaceKind::MonochromePrinter)
    {
        return {surface.ButtonTextColor(), position};
    }
    return {GetLineColor(position, surface.ButtonTextColor()), 0};
}

void DrawCurves(const ChartView& view, std::span<const ChartRecord> lines, ChartSurface& surface)
{
    const AxisMapping xAxis(XAxisKind(view.Chart), view.Range.XMin, view.Range.XMax);
    const AxisMapping yAxis(YAxisKind(view.Chart), view.Range.YMin, view.Range.YMax);
    int position = 0;
    for (const auto& line : lines)
    {
        if (BelongsTo(line, view.Chart))
        {
            const auto look = LookOfCurve(surface, position);
            surface.SetCurveDashes(look.Dashes);
            DrawCurve(line, xAxis, yAxis, look.Color, surface);
            ++position;
        }
    }
}

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

std::string NoteOf(const ChartView& view)
{
    const ChartKind* kind = FindChartKind(view.Chart.ChartType);
    if (kind == nullptr || !kind->RecommendsRise)
    {
        return {};
    }
    return "-Recommendation of temp. Rise is within " + NumberText(RecommendedRise) +
           UnitOf(Quantity::TemperatureRise, view.DegreeSign) + "-";
}

static void AddTitles(ChartAxes& axes, const ChartView& view, const ChartSurface& surface)
{
    const auto& xName = view.Chart.XAxisName;
    const auto& yName = view.Chart.YAxisName;
    axes.Texts.push_back({{35, -7, xName + ' ' + GetUnit(xName, view.DegreeSign)}});
    const auto yUnit = GetUnit(yName, view.DegreeSign);
    if (surface.Kind() == SurfaceKind::Screen)
    {
        axes.Texts.push_back({{surface.Scale().ScaleLeft, 50, yName + ' ' + yUnit}, true});
    }
    else
    {
        axes.Texts.push_back({{0, 107.5, yUnit}});
    }
    if (const auto note = NoteOf(view); !note.empty())
    {
        axes.Texts.push_back({{10, 107.3, note}});
    }
}

/// Axes in the fixed scale of chart windows and pages.
static ChartAxes LayOutAxes(const ChartView& view, const ChartSurface& surface)
{
    const auto xAxis = LayOutXAxis(view, surface);
    const auto yAxis = LayOutYAxis(view, xAxis.Labels, surface);
    ChartAxes axes;
    for (const auto* axis : {&xAxis, &yAxis})
    {
        for (const auto& line : axis->Grid)
        {
            axes.Lines.push_back({axis == &xAxis, line});
        }
        for (const auto& label : axis->Labels)
        {
            axes.Texts.push_back({label});
        }
    }
    AddTitles(axes, view, surface);
    return axes;
}

static void DrawFrame(ChartSurface& surface)
{
    surface.Line(0, 0, 100, 0, frameColor);
    surface.Line(100, 0, 100, 100, frameColor);
    surface.Line(100, 100, 0, 100, frameColor);
    surface.Line(0, 100, 0, 0, frameColor);
}

void DrawAxes(const ChartAxes& axes, ChartSurface& surface)
{
    for (const auto& [upright, line] : axes.Lines)
    {
        surface.Line(upright ? line.At : 0, upright ? 0 : line.At, upright ? line.At : 100,
                     upright ? 100 : line.At, line.Color);
    }
    DrawFrame(surface);
    for (const auto& [label, upwards] : axes.Texts)
    {
        if (upwards)
        {
            surface.TextUpwards(label.X, label.Y, label.Text, frameColor);
        }
        else if (label.Across < 1)
        {
            surface.CondensedText(label.X, label.Y, label.Across, label.Text, frameColor);
        }
        else
        {
            surface.Text(label.X, label.Y, label.Text, frameColor);
        }
    }
}

void DrawAxes(const ChartView& view, ChartSurface& surface)
{
    DrawAxes(LayOutAxes(view, surface), surface);
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

CurveLook LookOfCurve(SurfaceKind kind, const Color& buttonText, int position)
{
    if (kind == SurfaceKind::MonochromePrinter)
    {
        return {buttonText, position};
    }
    return {GetLineColor(position, buttonText), 0};
}

CurveLook LookOfCurve(const ChartSurface& surface, int position)
{
    return LookOfCurve(surface.Kind(), surface.ButtonTextColor(), position);
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

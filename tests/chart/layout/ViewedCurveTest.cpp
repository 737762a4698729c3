#include "chart/layout/ViewedCurve.h"

#include "calc/Calculate.h"
#include "calc/ChartKinds.h"
#include "calc/ValueAt.h"
#include "chart/layout/ChartDrawing.h"
#include "chart/layout/Mapping.h"
#include "files/PartLoading.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace
{

const PartTable& Parts()
{
    static const PartTable parts = LoadPartData(SAMPLE_RANGE);
    return parts;
}

/// A line of the first part that has such a chart.
ViewedLine LineOf(int chartType, const char* x, const char* y)
{
    ViewedLine line;
    line.Line.ChartType = static_cast<std::int16_t>(chartType);
    line.Line.XAxisName = x;
    line.Line.YAxisName = y;
    line.Line.HeatResistance = 100;
    line.Line.AmbientTemp = 25;
    line.Line.Frequency = 300;
    const auto part = std::ranges::find_if(Parts().PartData, [&](const PartRecord& candidate)
                                           { return IsAvailable(candidate, chartType); });
    line.Part = *part;
    EXPECT_FALSE(Calculate(line.Part, line.Line, CodeView::Eia));
    return line;
}

ChartView ViewOf(const ViewedLine& line, const AxisRange& range)
{
    return {KeyOf(line.Line), range};
}

AxisRange DefaultOf(const ViewedLine& line)
{
    return DefaultRange(KeyOf(line.Line), std::span(&line.Line, 1));
}

TEST(ViewedCurve, TakesStoredPointsOfAWholeLine)
{
    const auto line = LineOf(3, "DC Bias Voltage", "Capacitance");
    const auto range = DefaultOf(line);
    const auto runs = ViewedCurve(line, ViewOf(line, range), CodeView::Eia);
    ASSERT_EQ(runs.size(), 1U);
    ASSERT_EQ(runs[0].size(), CurvePoints);
    const AxisMapping x(AxisKind::Linear, range.XMin, range.XMax);
    const AxisMapping y(AxisKind::Linear, range.YMin, range.YMax);
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        EXPECT_NEAR(runs[0][i].X, x.Position(line.Line.XData[i]), 1e-9);
        EXPECT_NEAR(runs[0][i].Y, y.Position(line.Line.YData[i]), 1e-9);
    }
}

TEST(ViewedCurve, WorksOutNewPointsWhereTheRangeCutsTheLine)
{
    for (const auto& [type, xName, yName] :
         {std::tuple(3, "DC Bias Voltage", "Capacitance"), std::tuple(1, "Frequency", "Current"),
          std::tuple(0, "Current", "Temperature Rise"), std::tuple(2, "Temperature", "Capacitance Change")})
    {
        const auto line = LineOf(type, xName, yName);
        const auto kind = XAxisKind(KeyOf(line.Line));
        const AxisMapping wholeX(kind, line.Line.XData.front(), line.Line.XData.back());
        auto range = DefaultOf(line);
        range.XMin = static_cast<float>(wholeX.Value(30));
        range.XMax = static_cast<float>(wholeX.Value(31));
        const auto runs = ViewedCurve(line, ViewOf(line, range), CodeView::Eia);
        ASSERT_EQ(runs.size(), 1U) << xName;
        ASSERT_EQ(runs[0].size(), CurvePoints);
        EXPECT_NEAR(runs[0].front().X, 0, 1e-4);
        EXPECT_NEAR(runs[0].back().X, 100, 1e-4);
        const AxisMapping x(kind, range.XMin, range.XMax);
        const AxisMapping y(YAxisKind(KeyOf(line.Line)), range.YMin, range.YMax);
        for (std::size_t i = 10; i < CurvePoints; i += 40)
        {
            const auto value = ValueAt(line.Part, line.Line, x.Value(runs[0][i].X), CodeView::Eia);
            ASSERT_TRUE(value);
            EXPECT_NEAR(runs[0][i].Y, y.Position(*value), 1e-4) << xName;
        }
    }
}

TEST(ViewedCurve, EndsWhereTheLineEnds)
{
    const auto line = LineOf(3, "DC Bias Voltage", "Capacitance");
    auto range = DefaultOf(line);
    const float last = line.Line.XData.back();
    range.XMin = last / 2;
    range.XMax = last * 1.5F;
    const auto runs = ViewedCurve(line, ViewOf(line, range), CodeView::Eia);
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_NEAR(runs[0].back().X, 50, 1e-4);
    range.XMin = last * 1.1F;
    EXPECT_TRUE(ViewedCurve(line, ViewOf(line, range), CodeView::Eia).empty());
}

/// A line with these values at even steps from 0 to 199.
ViewedLine LineOfValues(float (*valueAt)(int))
{
    ViewedLine line;
    line.Line.ChartType = 3;
    line.Line.XAxisName = "DC Bias Voltage";
    line.Line.YAxisName = "Capacitance";
    for (int i = 0; i < static_cast<int>(CurvePoints); ++i)
    {
        line.Line.XData[static_cast<std::size_t>(i)] = static_cast<float>(i);
        line.Line.YData[static_cast<std::size_t>(i)] = valueAt(i);
    }
    return line;
}

TEST(ViewedCurve, IsCutAtTheEdgeOfThePlot)
{
    const auto wave = LineOfValues([](int i) { return 50 + 100 * std::sin(static_cast<float>(i) / 20); });
    const auto runs = ViewedCurve(wave, ViewOf(wave, {199, 100, 0, 0}), CodeView::Eia);
    ASSERT_GT(runs.size(), 3U);
    for (std::size_t i = 0; i < runs.size(); ++i)
    {
        ASSERT_GE(runs[i].size(), 2U);
        for (const auto& point : runs[i])
        {
            EXPECT_TRUE(point.X >= 0 && point.X <= 100 && point.Y >= 0 && point.Y <= 100);
        }
        if (i > 0)
        {
            const auto& end = runs[i - 1].back();
            EXPECT_TRUE(end.Y == 0 || end.Y == 100);
            EXPECT_EQ(runs[i].front().Y, end.Y);
            EXPECT_GT(runs[i].front().X, end.X);
        }
    }
}

TEST(ViewedCurve, PassesThroughAPlotWithoutAPointInIt)
{
    const auto steep = LineOfValues([](int i) { return i < 100 ? -1000.0F : 1100.0F; });
    const auto runs = ViewedCurve(steep, ViewOf(steep, {199, 100, 0, 0}), CodeView::Eia);
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0].front().Y, 0);
    EXPECT_EQ(runs[0].back().Y, 100);
}

TEST(ViewedCurve, IsNothingForZerosOnALogarithmicAxis)
{
    auto zeros = LineOfValues([](int) { return 0.0F; });
    zeros.Line.ChartType = 1;
    zeros.Line.XAxisName = "Frequency";
    zeros.Line.YAxisName = "Current";
    EXPECT_TRUE(ViewedCurve(zeros, ViewOf(zeros, {1e6F, 1, 1e4F, 0.1F}), CodeView::Eia).empty());
}

TEST(ViewedCurve, IsNothingInARangeWithoutWidth)
{
    const auto line = LineOfValues([](int) { return 50.0F; });
    EXPECT_TRUE(ViewedCurve(line, ViewOf(line, {10, 100, 10, 0}), CodeView::Eia).empty());
    EXPECT_TRUE(ViewedCurve(line, ViewOf(line, {199, 50, 0, 50}), CodeView::Eia).empty());
}

} // namespace

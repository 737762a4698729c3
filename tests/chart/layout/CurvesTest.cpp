#include "tests/chart/layout/RecordingSurface.h"

#include "chart/layout/Colors.h"

#include <gtest/gtest.h>

static const ChartKey riseOverCurrent = {0, "Current", "Temperature Rise"};
static const ChartKey allowableCurrent = {1, "Frequency", "Current"};

/// A level line: X(i) = i / 2, Y = 5.
static ChartRecord LevelLine(const ChartKey& chart)
{
    ChartRecord line;
    line.ChartType = chart.ChartType;
    line.XAxisName = chart.XAxisName;
    line.YAxisName = chart.YAxisName;
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        line.XData[i] = static_cast<float>(i) / 2;
        line.YData[i] = 5;
    }
    return line;
}

static RecordingSurface CurvesOf(const ChartView& view, std::vector<ChartRecord>& lines,
                                 SurfaceKind kind = SurfaceKind::Screen)
{
    RecordingSurface surface(kind);
    PlaceCurves(view, lines);
    DrawCurves(view, lines, surface);
    return surface;
}

TEST(Curves, AreOnePolylineThroughAllPoints)
{
    std::vector lines = {LevelLine(riseOverCurrent)};
    const auto surface = CurvesOf({riseOverCurrent, {100, 10, 0, 0}}, lines);
    ASSERT_EQ(surface.Curves.size(), 1U);
    ASSERT_EQ(surface.Curves[0].Points.size(), CurvePoints);
    EXPECT_EQ(surface.Curves[0].Points[0], (Point{0, 50}));
    EXPECT_EQ(surface.Curves[0].Points[199], (Point{99.5, 50}));
}

TEST(Curves, LoseEverySegmentWithAnEndOutside)
{
    std::vector lines = {LevelLine(riseOverCurrent)};
    lines[0].YData[50] = 11;
    lines[0].YData[60] = -1;
    lines[0].YData[62] = 10.5F;
    const auto surface = CurvesOf({riseOverCurrent, {90, 10, 0, 0}}, lines);
    // Points 0 to 49, 51 to 59, 63 to 180 (X = 90); point 61 stands alone.
    ASSERT_EQ(surface.Curves.size(), 3U);
    EXPECT_EQ(surface.Curves[0].Points.size(), 50U);
    EXPECT_EQ(surface.Curves[1].Points.size(), 9U);
    EXPECT_EQ(surface.Curves[2].Points.size(), 118U);
    EXPECT_FLOAT_EQ(static_cast<float>(surface.Curves[2].Points.back().X), 100);
}

TEST(Curves, KeepPointsOnTheBoundsOfTheRange)
{
    std::vector lines = {LevelLine(riseOverCurrent)};
    lines[0].YData.fill(10);
    lines[0].YData[10] = 0;
    const auto surface = CurvesOf({riseOverCurrent, {99.5F, 10, 0, 0}}, lines);
    ASSERT_EQ(surface.Curves.size(), 1U);
    EXPECT_EQ(surface.Curves[0].Points.size(), CurvePoints);
}

TEST(Curves, PlaceAllPointsAlsoThoseOutside)
{
    std::vector lines = {LevelLine(riseOverCurrent)};
    lines[0].YData[50] = 11;
    PlaceCurves({riseOverCurrent, {50, 10, 0, 0}}, lines);
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        EXPECT_FLOAT_EQ(lines[0].XPos[i], static_cast<float>(i));
        EXPECT_FLOAT_EQ(lines[0].YPos[i], i == 50 ? 110.0F : 50.0F);
    }
}

TEST(Curves, FollowTheLogarithmOnLogarithmicAxes)
{
    std::vector lines = {LevelLine(allowableCurrent)};
    lines[0].XData.fill(1e5F);
    lines[0].YData.fill(1);
    lines[0].YData[7] = 0;
    lines[0].XData[9] = -4;
    const auto surface = CurvesOf({allowableCurrent, {1e6F, 100, 1e4F, 0.01F}}, lines);
    EXPECT_NEAR(lines[0].XPos[0], 50, 1e-5);
    EXPECT_NEAR(lines[0].YPos[0], 50, 1e-5);
    EXPECT_EQ(lines[0].YPos[7], 0);
    EXPECT_EQ(lines[0].XPos[9], 0);
    // Points 0 to 6 and 10 to 199; point 8 stands alone.
    ASSERT_EQ(surface.Curves.size(), 2U);
    EXPECT_EQ(surface.Curves[0].Points.size(), 7U);
    EXPECT_EQ(surface.Curves[1].Points.size(), 190U);
}

TEST(Curves, AreNotDrawnOverNoWidth)
{
    std::vector lines = {LevelLine(riseOverCurrent)};
    lines[0].XPos.fill(7);
    const auto surface = CurvesOf({riseOverCurrent, {100, 5, 0, 5}}, lines);
    EXPECT_TRUE(surface.Curves.empty());
    EXPECT_EQ(lines[0].YPos[100], 0);
    EXPECT_EQ(lines[0].XPos[100], 50);
}

TEST(Curves, HaveTheColourOfTheirPositionAmongTheChartsLines)
{
    std::vector<ChartRecord> lines;
    for (int i = 0; i < 6; ++i)
    {
        lines.push_back(LevelLine({0, "Voltage", "Temperature Rise"}));
        lines.push_back(LevelLine(riseOverCurrent));
        lines.push_back(LevelLine({1, "Current", "Temperature Rise"}));
        lines.push_back(LevelLine({0, "Current", "Current"}));
    }
    const auto surface = CurvesOf({riseOverCurrent, {100, 10, 0, 0}}, lines);
    const Color expected[] = {{0, 0, 255},   {255, 0, 0}, {20, 30, 90},
                              {255, 0, 255}, {0, 128, 0}, {192, 64, 0}};
    ASSERT_EQ(surface.Curves.size(), 6U);
    for (std::size_t i = 0; i < 6; ++i)
    {
        EXPECT_EQ(surface.Curves[i].Color, expected[i]);
    }
    EXPECT_EQ(lines[0].XPos[10], 0) << "a line of another chart is left as it was";
}

TEST(Curves, HaveOneColourOnAMonochromePrinter)
{
    std::vector lines(6, LevelLine(riseOverCurrent));
    const ChartView view = {riseOverCurrent, {100, 10, 0, 0}};
    for (const auto& curve : CurvesOf(view, lines, SurfaceKind::MonochromePrinter).Curves)
    {
        EXPECT_EQ(curve.Color, (Color{20, 30, 90}));
    }
    EXPECT_EQ(CurvesOf(view, lines, SurfaceKind::ColorPrinter).Curves.at(0).Color, (Color{0, 0, 255}));
}

TEST(PaneColors, DifferFromTheCurveOnlyInTheSixth)
{
    constexpr Color black = {0, 0, 0};
    for (const int index : {0, 1, 2, 3, 4})
    {
        EXPECT_EQ(GetPaneColor(index), GetLineColor(index, black));
    }
    EXPECT_EQ(GetPaneColor(2), black);
    EXPECT_EQ(GetPaneColor(5), (Color{128, 0, 0}));
    EXPECT_EQ(GetLineColor(5, black), (Color{192, 64, 0}));
}

TEST(DefaultRange, CoversTheLinesOfTheChartOnly)
{
    std::vector lines(4, LevelLine(riseOverCurrent));
    lines[0].XAxisName = "Voltage";
    lines[0].XMax = 1000;
    lines[1].XMax = 4;
    lines[1].YMax = 80;
    lines[1].XMin = 1;
    lines[1].YMin = -5;
    lines[2].XMax = 3;
    lines[2].YMax = 100;
    lines[2].XMin = 0.5F;
    lines[2].YMin = 2;
    lines[3].ChartType = 2;
    lines[3].YMin = -100;
    const auto range = DefaultRange(riseOverCurrent, lines);
    EXPECT_EQ(range.XMax, 4);
    EXPECT_EQ(range.YMax, 100);
    EXPECT_EQ(range.XMin, 0.5F);
    EXPECT_EQ(range.YMin, -5);
    EXPECT_EQ(DefaultRange(allowableCurrent, lines).XMax, 0);
}

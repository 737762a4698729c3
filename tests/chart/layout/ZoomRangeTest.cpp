#include "chart/layout/ZoomRange.h"

#include "calc/NumberText.h"
#include "chart/layout/AxisLimits.h"
#include "tests/Seed.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace
{
const ChartKey change = {2, "Temperature", "Capacitance Change"};
const ChartKey allowable = {1, "Frequency", "Current"};
const ChartKey rise = {0, "Current", "Temperature Rise"};
constexpr AxisRange changeRange = {125, 20, -75, -80};
constexpr AxisRange allowableRange = {1e6F, 10, 1e4F, 0.01F};

std::string TextOf(const AxisRange& range)
{
    return NumberText(range.XMin) + ".." + NumberText(range.XMax) + " " + NumberText(range.YMin) + ".." +
           NumberText(range.YMax);
}

/// True when both ends are permitted, but for the rounding of singles.
bool Permits(const PermittedRange& permitted, float from, float to)
{
    const float slack = 1e-6F * (permitted.Highest - permitted.Lowest);
    return from >= permitted.Lowest - slack && to <= permitted.Highest + slack;
}

TEST(ZoomRange, BeginsWithTheDefaultRange)
{
    const ZoomRange zoom(change, changeRange);
    EXPECT_EQ(TextOf(zoom.Range()), "-75..125 -80..20");
    EXPECT_TRUE(zoom.IsDefault());
}

TEST(ZoomRange, ZoomsAboutAPosition)
{
    ZoomRange zoom(change, changeRange);
    zoom.Zoom(2, 50, 0);
    EXPECT_EQ(TextOf(zoom.Range()), "-25..75 -80..-30");
    EXPECT_FALSE(zoom.IsDefault());
    zoom.Zoom(2, 0, 0, ZoomAxes::X);
    EXPECT_EQ(TextOf(zoom.Range()), "-25..25 -80..-30");
    zoom.Zoom(2, 0, 100, ZoomAxes::Y);
    EXPECT_EQ(TextOf(zoom.Range()), "-25..25 -55..-30");
    zoom.Reset();
    EXPECT_TRUE(zoom.IsDefault());
}

TEST(ZoomRange, BringsTheValueUnderAPointerToWhereThePlotHasMoved)
{
    ZoomRange zoom(change, changeRange);
    // 25 °C stood in the middle, and stands four tenths from the left afterwards.
    zoom.Zoom(2, 50, 0, ZoomAxes::Both, 40);
    EXPECT_EQ(TextOf(zoom.Range()), "-15..85 -80..-30");
    zoom.Zoom(0.5, 40, 0, ZoomAxes::Both, 50);
    EXPECT_TRUE(zoom.IsDefault());
}

TEST(ZoomRange, RoundsEndsToAThousandthOfTheSpan)
{
    ZoomRange zoom(change, changeRange);
    zoom.Zoom(3, 33.3333, 50);
    EXPECT_EQ(TextOf(zoom.Range()), "-30.56..36.11 -46.67..-13.33");
    ZoomRange logarithmic(allowable, allowableRange);
    logarithmic.Zoom(3, 50, 50);
    EXPECT_EQ(TextOf(logarithmic.Range()), "46420..215400 0.1..1");
}

TEST(ZoomRange, ComesBackByAsManySteps)
{
    for (const auto& [chart, range] : {std::pair(change, changeRange), std::pair(allowable, allowableRange)})
    {
        ZoomRange zoom(chart, range);
        for (int i = 0; i < 4; ++i)
        {
            zoom.Zoom(1.25, 31, 77);
        }
        EXPECT_FALSE(zoom.IsDefault());
        for (int i = 0; i < 4; ++i)
        {
            zoom.Zoom(1 / 1.25, 31, 77);
        }
        EXPECT_TRUE(zoom.IsDefault()) << TextOf(zoom.Range());
    }
}

TEST(ZoomRange, SumsUpTheFinestSteps)
{
    ZoomRange zoom(change, changeRange);
    for (int i = 0; i < 120; ++i)
    {
        zoom.Zoom(std::pow(1.25, 1 / 120.0), 50, 50);
    }
    EXPECT_EQ(TextOf(zoom.Range()), "-55..105 -70..10");
}

TEST(ZoomRange, ShiftsAtALimitAndKeepsItsSpan)
{
    ZoomRange zoom(change, changeRange);
    zoom.Pan(1000, -1000);
    EXPECT_EQ(TextOf(zoom.Range()), "125..325 -180..-80");
    zoom.Zoom(0.5, 100, 0);
    EXPECT_EQ(TextOf(zoom.Range()), "-75..325 -180..20");
    zoom.Zoom(0.01, 50, 50);
    EXPECT_EQ(TextOf(zoom.Range()), "-275..325 -180..120");
}

TEST(ZoomRange, StopsAtTheLeastSpan)
{
    ZoomRange zoom(change, changeRange);
    zoom.Zoom(1e9, 50, 50);
    EXPECT_EQ(TextOf(zoom.Range()), "24.9..25.1 -30.05..-29.95");
    ZoomRange logarithmic(allowable, allowableRange);
    logarithmic.Zoom(1e9, 0, 0);
    EXPECT_NEAR(std::log10(logarithmic.Range().XMax / logarithmic.Range().XMin), 0.1, 1e-3);
}

TEST(ZoomRange, ShowsWhatWasDrawnAround)
{
    ZoomRange zoom(change, changeRange);
    zoom.ZoomTo(75, 10, 25, 60);
    EXPECT_EQ(TextOf(zoom.Range()), "-25..75 -70..-20");
}

TEST(ZoomRange, TakesARangeOfTheUsersOwnAsItIs)
{
    ZoomRange zoom(change, changeRange);
    zoom.Set({30.0625F, 1.0078125F, -54.123F, -10});
    EXPECT_EQ(TextOf(zoom.Range()), "-54.123..30.0625 -10..1.0078125");
    zoom.Set({1000, 20, 700, -80});
    EXPECT_EQ(TextOf(zoom.Range()), "25..325 -80..20");
    zoom.Set({25, 20, 25, -80});
    EXPECT_EQ(TextOf(zoom.Range()), "25..325 -80..20");
}

TEST(ZoomRange, LeavesAnAxisWithoutExtent)
{
    ZoomRange zoom(rise, {0, 0, 0, 0});
    zoom.Zoom(2, 50, 50);
    zoom.Pan(10, 10);
    zoom.Set({1, 1, 0, 0});
    EXPECT_EQ(TextOf(zoom.Range()), "0..0 0..0");
    EXPECT_TRUE(zoom.IsDefault());
    zoom.Reset();
    EXPECT_TRUE(zoom.IsDefault());
}

TEST(ZoomRange, NeverLeavesWhatIsPermitted)
{
    std::mt19937 random(TestSeed(19));
    std::uniform_real_distribution<double> position(-20, 120);
    std::uniform_real_distribution<double> factor(0.3, 3.5);
    for (const auto& [chart, range] : {std::pair(change, changeRange), std::pair(allowable, allowableRange),
                                       std::pair(rise, AxisRange{3.3333F, 40, 0, 0})})
    {
        const auto unit = KindOf(QuantityNamed(chart.XAxisName)).StoredPerShown;
        const auto permittedX = PermittedXRange(chart, range);
        const auto permittedY = PermittedYRange(chart, range);
        ZoomRange zoom(chart, range);
        for (int i = 0; i < 3000; ++i)
        {
            switch (random() % 3)
            {
            case 0:
                zoom.Zoom(factor(random), position(random), position(random), ZoomAxes(random() % 3));
                break;
            case 1:
                zoom.Pan(position(random) - 50, position(random) - 50);
                break;
            default:
                zoom.ZoomTo(position(random), position(random), position(random), position(random));
            }
            const auto shown = zoom.Range();
            ASSERT_LT(shown.XMin, shown.XMax);
            ASSERT_LT(shown.YMin, shown.YMax);
            ASSERT_TRUE(Permits(permittedX, shown.XMin / unit, shown.XMax / unit)) << TextOf(shown);
            ASSERT_TRUE(Permits(permittedY, shown.YMin, shown.YMax)) << TextOf(shown);
        }
    }
}

} // namespace

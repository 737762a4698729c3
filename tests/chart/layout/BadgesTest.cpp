#include "chart/layout/Badges.h"

#include "chart/layout/FittingLayout.h"
#include "chart/layout/FittingText.h"
#include "tests/Seed.h"
#include "tests/chart/layout/PlainRuler.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace
{

constexpr Box plot = {50, 40, 1000, 400};
constexpr double radius = 10;

/// A curve of some points in one run.
PixelCurve Curve(std::vector<Point> points)
{
    return {std::move(points)};
}

double DistanceOf(const Point& a, const Point& b)
{
    return std::hypot(a.X - b.X, a.Y - b.Y);
}

TEST(Badges, StandBeyondTheEndsOfTheirLines)
{
    const std::vector<PixelCurve> curves = {Curve({{50, 100}, {1050, 200}}), Curve({{50, 300}, {600, 350}})};
    const auto badges = PlaceBadges(curves, plot, radius);
    ASSERT_EQ(badges.size(), 2U);
    EXPECT_EQ(badges[0].Center, (Point{1063, 200}));
    EXPECT_EQ(badges[1].Center, (Point{613, 350}));
    EXPECT_FALSE(badges[0].LeaderFrom || badges[1].LeaderFrom);
}

TEST(Badges, GoLeftOnTheirLineWhereAnotherEndsBeside)
{
    const std::vector<PixelCurve> curves = {Curve({{50, 100}, {1050, 200}}), Curve({{50, 400}, {1050, 205}})};
    const auto badges = PlaceBadges(curves, plot, radius);
    EXPECT_EQ(badges[0].Center, (Point{1063, 200}));
    const auto& second = badges[1].Center;
    // On its line, and clear of the other by a little more than a badge.
    EXPECT_LT(DistanceFromCurve(second, curves[1], 100), 1e-9);
    EXPECT_GE(DistanceFromCurve(second, curves[0], 100), 22);
    EXPECT_LT(DistanceFromCurve(second, curves[0], 100), 25);
}

TEST(Badges, StandSideBySideOnLinesThatCoincide)
{
    const auto line = Curve({{50, 100}, {550, 120}, {1050, 200}});
    const auto badges = PlaceBadges(std::vector<PixelCurve>(6, line), plot, radius);
    ASSERT_EQ(badges.size(), 6U);
    for (std::size_t i = 1; i < badges.size(); ++i)
    {
        EXPECT_LT(badges[i].Center.X, badges[i - 1].Center.X);
        EXPECT_LT(DistanceOf(badges[i].Center, badges[i - 1].Center), 3.5 * radius);
        EXPECT_LT(DistanceFromCurve(badges[i].Center, line, 100), 1e-9);
    }
}

TEST(Badges, StandSideBySideOnLinesThatNearlyCoincide)
{
    const std::vector<PixelCurve> curves = {Curve({{50, 100}, {1050, 200}}), Curve({{50, 101}, {1050, 200}}),
                                            Curve({{50, 102}, {1050, 200}})};
    const auto badges = PlaceBadges(curves, plot, radius);
    EXPECT_GT(badges[1].Center.X, 1000);
    EXPECT_GT(badges[2].Center.X, 980);
}

TEST(Badges, StandSideBySideWhereTheirLinesCanBeToldFromOthers)
{
    const auto one = Curve({{50, 100}, {1050, 300}});
    const auto two = Curve({{50, 400}, {1050, 305}});
    const std::vector<PixelCurve> curves = {one, two, two};
    const auto badges = PlaceBadges(curves, plot, radius);
    for (const std::size_t badge : {1U, 2U})
    {
        EXPECT_LT(DistanceFromCurve(badges[badge].Center, two, 100), 1e-9);
        EXPECT_GE(DistanceFromCurve(badges[badge].Center, one, 100), 22);
    }
    EXPECT_LT(DistanceOf(badges[1].Center, badges[2].Center), 3.5 * radius);
}

TEST(Badges, StandSideBySideOnLinesThatBeginAtTheEdge)
{
    // The plot holds badges up there, away from the line: no reason to leave its end.
    const auto line = Curve({{50, 440}, {300, 439}, {1000, 100}});
    const auto badges = PlaceBadges(std::vector<PixelCurve>(3, line), plot, radius);
    EXPECT_GT(badges[2].Center.X, 900);
}

TEST(Badges, HaveLeadersWhereTheirLineIsShorterThanABadge)
{
    const auto dot = Curve({{500, 200}, {504, 201}});
    const auto badges = PlaceBadges(std::vector<PixelCurve>(3, dot), plot, radius);
    ASSERT_EQ(badges.size(), 3U);
    EXPECT_FALSE(badges[0].LeaderFrom);
    EXPECT_EQ(badges[1].LeaderFrom, (Point{504, 201}));
    EXPECT_EQ(badges[2].LeaderFrom, (Point{504, 201}));
    EXPECT_GE(DistanceOf(badges[1].Center, badges[2].Center), 2.3 * radius);
}

TEST(Badges, StandAtTheirEndWhereThePlotHasNoPlace)
{
    const auto dot = Curve({{4, 5}, {6, 5}});
    const auto badges = PlaceBadges(std::vector<PixelCurve>(2, dot), {0, 0, 10, 10}, radius);
    ASSERT_EQ(badges.size(), 2U);
    EXPECT_EQ(badges[1].Center, (Point{6, 10}));
}

TEST(Badges, StayWithinThePlotAboveAndBelow)
{
    const std::vector<PixelCurve> curves = {Curve({{50, 100}, {700, 40}}), Curve({{50, 440}, {1050, 440}})};
    const auto badges = PlaceBadges(curves, plot, radius);
    EXPECT_EQ(badges[0].Center, (Point{713, 50}));
    EXPECT_EQ(badges[1].Center, (Point{1063, 430}));
}

TEST(Badges, AreNoneForALineOutOfView)
{
    const std::vector<PixelCurve> curves = {{}, Curve({{50, 300}, {600, 350}})};
    const auto badges = PlaceBadges(curves, plot, radius);
    ASSERT_EQ(badges.size(), 1U);
    EXPECT_EQ(badges[0].Line, 1);
}

/// Up to six lines as charts have them: falling, rising, ending early, nearly alike or alike.
std::vector<PixelCurve> RandomChart(const Box& place, std::mt19937& random)
{
    std::uniform_real_distribution<double> share(0, 1);
    std::vector<PixelCurve> curves;
    const auto lines = 1 + random() % 6;
    const double spread = share(random) < 0.4 ? 0.05 : 1;
    const double base = share(random);
    while (curves.size() < lines)
    {
        if (!curves.empty() && share(random) < 0.15)
        {
            curves.push_back(curves.back());
            continue;
        }
        const double from = base + spread * (share(random) - 0.5);
        const double to = base + spread * (share(random) - 0.5);
        const double bend = 0.3 + 3 * share(random);
        const double length = share(random) < 0.1 ? 0.005 : share(random) < 0.4 ? share(random) : 1;
        std::vector<Point> run;
        for (int i = 0; i < 200; ++i)
        {
            const double u = i / 199.0;
            const double y = std::clamp(from + (to - from) * std::pow(u, bend), 0.0, 1.0);
            run.push_back({place.Left + place.Width * u * length, place.Top + place.Height * (1 - y)});
        }
        curves.push_back({run});
    }
    return curves;
}

TEST(Badges, NeverTouch)
{
    std::mt19937 random(TestSeed(600));
    std::size_t placed = 0;
    for (int chart = 0; chart < 600; ++chart)
    {
        const auto seed = random();
        for (const auto& [width, height] :
             {std::pair(600.0, 240.0), std::pair(1200.0, 540.0), std::pair(3840.0, 1500.0)})
        {
            std::mt19937 same(seed);
            const double size = FittingTextSize(width, height / 0.65);
            const Box place = LayOutFitting({{0, "Current", "Temperature Rise"}, {18, 100, 0, 0}}, width,
                                            height, PlainRuler(size))
                                  .Plot;
            const auto curves = RandomChart(place, same);
            const double badge = badgeRadius * size;
            const auto badges = PlaceBadges(curves, place, badge);
            ASSERT_EQ(badges.size(), curves.size());
            placed += badges.size();
            for (std::size_t i = 0; i < badges.size(); ++i)
            {
                const auto& center = badges[i].Center;
                ASSERT_GE(center.Y, place.Top + badge - 1e-9) << "chart " << chart;
                ASSERT_LE(center.Y, place.Top + place.Height - badge + 1e-9) << "chart " << chart;
                ASSERT_LE(center.X + 1.25 * badge, width) << "chart " << chart;
                for (std::size_t k = 0; k < i; ++k)
                {
                    ASSERT_GE(DistanceOf(center, badges[k].Center), 2.3 * badge - 1e-9) << "chart " << chart;
                }
            }
        }
    }
    EXPECT_GT(placed, 5000U);
}

} // namespace

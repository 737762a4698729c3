#include "stress/Waveform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace
{
using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pointwise;

/// 0 to 2 A in 1 s, a jump to -1 A, 1 s of it, back to 0 in 2 s.
Waveform Jumping()
{
    return Waveform({{0, 0}, {1, 2}, {1, -1}, {2, -1}, {4, 0}});
}

TEST(Waveform, IsStraightBetweenItsPoints)
{
    EXPECT_DOUBLE_EQ(Jumping().At(0.25), 0.5);
    EXPECT_DOUBLE_EQ(Jumping().At(1), -1);
    EXPECT_DOUBLE_EQ(Jumping().At(3), -0.5);
    EXPECT_DOUBLE_EQ(Jumping().At(4), 0);
}

TEST(Waveform, TellsExactFigures)
{
    const auto figures = Jumping().FiguresOf({0, 4});
    // The charge is 1 - 1 - 1 As, the square 4/3 + 1 + 2/3 A²s.
    EXPECT_DOUBLE_EQ(figures.Mean, -0.25);
    EXPECT_DOUBLE_EQ(figures.MeanSquare, 3.0 / 4 - 0.0625);
    EXPECT_DOUBLE_EQ(figures.Lowest, -1);
    EXPECT_DOUBLE_EQ(figures.Highest, 2);
}

TEST(Waveform, IsCutByInterpolation)
{
    EXPECT_THAT(Jumping().Cut({0.5, 3}), ElementsAre(WavePoint{0.5, 1}, WavePoint{1, 2}, WavePoint{1, -1},
                                                     WavePoint{2, -1}, WavePoint{3, -0.5}));
    EXPECT_THAT(Jumping().Cut({0.5, 1}), ElementsAre(WavePoint{0.5, 1}, WavePoint{1, 2}));
    EXPECT_THAT(Jumping().Cut({1, 2}), ElementsAre(WavePoint{1, -1}, WavePoint{2, -1}));
}

TEST(Waveform, KeepsItsChargeInBins)
{
    EXPECT_THAT(Jumping().BinMeans({0, 4}, 4), Pointwise(DoubleNear(1e-15), {1.0, -1.0, -0.75, -0.25}));
    EXPECT_THAT(Jumping().BinMeans({0.5, 1.5}, 1), ElementsAre(DoubleNear(0.25, 1e-15)));
}

/// Bins of every width against the charge of each one's own cut.
TEST(Waveform, KeepsItsChargeInBinsOfAnyWidth)
{
    std::mt19937 random(11);
    std::uniform_real_distribution<double> share(0, 1);
    std::vector<WavePoint> points;
    double seconds = 0;
    for (int i = 0; i < 300; ++i)
    {
        points.push_back({seconds, share(random) - 0.5});
        seconds += i % 7 == 0 ? 0 : share(random);
    }
    const Waveform wave(points);
    for (const std::size_t bins : {1, 3, 64, 5000})
    {
        const TimeSpan span{0.3, seconds - 2};
        const auto means = wave.BinMeans(span, bins);
        const double width = span.Length() / static_cast<double>(bins);
        for (std::size_t i = 0; i < bins; ++i)
        {
            const double from = span.From + static_cast<double>(i) * width;
            EXPECT_NEAR(means[i], wave.FiguresOf({from, from + width}).Mean, 1e-9) << i << " of " << bins;
        }
    }
}
} // namespace

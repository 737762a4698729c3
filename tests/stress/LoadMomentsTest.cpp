#include "stress/LoadMoments.h"

#include "tests/stress/Waves.h"

#include <gtest/gtest.h>

namespace
{
TEST(LoadMoments, HeatAsTheSumOverTheLines)
{
    const auto model = HeatingOfTenMicrofarads();
    const auto moments = MomentsOf({{20e3, 0.25}, {300e3, 4}, {900e3, 1}});
    const double sum = 0.25 * model.kI(20e3) + 4 * model.kI(300e3) + model.kI(900e3);
    EXPECT_NEAR(RiseOf(moments, model), sum, 1e-14 * sum);
}

TEST(LoadMoments, HoldTheLawAboveOneMegahertz)
{
    const auto model = HeatingOfTenMicrofarads();
    EXPECT_DOUBLE_EQ(RiseOf(MomentsOf({{3e6, 2}}), model), 2 * model.kI(1e6));
}

TEST(LoadMoments, OfASineAreThatSine)
{
    const auto sine = MomentsOf({{634e3, 4}}).Sine();
    EXPECT_DOUBLE_EQ(sine.Arms, 2);
    EXPECT_DOUBLE_EQ(sine.Hertz, 634e3);
    EXPECT_EQ(LoadMoments().Sine().Arms, 0);
}

TEST(LoadMoments, HeatAsTheirSine)
{
    const auto model = HeatingOfTenMicrofarads();
    const auto moments = MomentsOf({{100e3, 1}, {200e3, 0.5}, {300e3, 0.3}, {2e6, 0.2}});
    const auto sine = moments.Sine();
    const double rise = RiseOf(moments, model);
    EXPECT_NEAR(sine.Arms * sine.Arms * model.kI(sine.Hertz), rise, 0.0017 * rise);
}

TEST(LoadMoments, GrowWithTheSquareOfTheCurrent)
{
    const auto moments = MomentsOf({{100e3, 1}}).Scaled(3);
    EXPECT_DOUBLE_EQ(moments.Square, 9);
    EXPECT_DOUBLE_EQ(moments.Sine().Hertz, 100e3);
}

TEST(SplitMoments, TellWhatTheDataReachTo)
{
    SplitMoments split;
    for (const double hertz : {9.8e3, 9.95e3, 500e3, 1.005e6, 1.02e6})
    {
        split.Add({hertz, 1});
    }
    EXPECT_EQ(split.Below.Square, 1);
    EXPECT_EQ(split.Inside.Square, 3);
    EXPECT_EQ(split.Above.Square, 1);
    EXPECT_EQ(split.Total().Square, 5);
}
} // namespace

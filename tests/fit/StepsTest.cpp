#include "fit/Steps.h"

#include <gtest/gtest.h>

TEST(StepsOf, GathersReadingsThatLieTogether)
{
    const auto steps = StepsOf({25.1, 85, 24.8, 26.8, 26.9}, 2);
    ASSERT_EQ(steps.size(), 3U);
    EXPECT_DOUBLE_EQ(steps[0].Least, 24.8);
    EXPECT_DOUBLE_EQ(steps[0].Most, 26.8);
    EXPECT_EQ(steps[0].Count, 3U);
    EXPECT_TRUE(steps[0].Holds(25));
    EXPECT_FALSE(steps[0].Holds(26.9));
    EXPECT_DOUBLE_EQ(steps[2].Least, 85);
}

TEST(StepsOf, HasNoneOfNothing)
{
    EXPECT_TRUE(StepsOf({}, 1).empty());
}

TEST(RatioStepsOf, CountsByTheRatio)
{
    const auto steps = RatioStepsOf({1e6, 1.02e6, 1e5, 0.99e5}, 1.05);
    ASSERT_EQ(steps.size(), 2U);
    EXPECT_DOUBLE_EQ(steps[0].Least, 0.99e5);
    EXPECT_EQ(steps[1].Count, 2U);
}

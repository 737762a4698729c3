/// The machine-independent powers and logarithms, against the mathematics library.

#include "fit/PlainMath.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(PlainMath, ExponentialAgreesWithTheLibrary)
{
    for (double x = -60; x <= 60; x += 0.37)
    {
        EXPECT_NEAR(PlainExp(x) / std::exp(x), 1, 4e-14) << x;
    }
    EXPECT_EQ(PlainExp(0), 1);
}

TEST(PlainMath, LogarithmsAgreeWithTheLibrary)
{
    for (double decade = -14; decade <= 14; decade += 0.13)
    {
        const double value = std::pow(10, decade);
        EXPECT_NEAR(PlainLog(value), std::log(value), 1e-14 * (1 + std::fabs(std::log(value)))) << value;
        EXPECT_NEAR(PlainLog10(value), decade, 1e-13) << value;
    }
    EXPECT_EQ(PlainLog(1), 0);
}

TEST(PlainMath, PowersAgreeWithTheLibrary)
{
    for (double base = 0.05; base < 20; base *= 1.3)
    {
        for (double exponent = -3; exponent <= 3; exponent += 0.4)
        {
            EXPECT_NEAR(PlainPower(base, exponent) / std::pow(base, exponent), 1, 4e-14);
        }
    }
    EXPECT_EQ(PlainPower(0, 1.9), 0);
}

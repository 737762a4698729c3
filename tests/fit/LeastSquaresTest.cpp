/// The fits, on curves whose best fit is known.

#include "fit/LeastSquares.h"

#include <gtest/gtest.h>

#include <cmath>

template <class Law> static std::vector<Sample> SamplesOf(Law law, double from, double to, int steps = 40)
{
    std::vector<Sample> samples;
    for (int i = 0; i <= steps; ++i)
    {
        const double x = from + (to - from) * i / steps;
        samples.push_back({x, law(x)});
    }
    return samples;
}

TEST(FitThroughOrigin, FindsThePolynomialItWasGiven)
{
    const auto law = [](double x) { return 3 * x - 2 * x * x + 0.5 * std::pow(x, 4) - 7 * std::pow(x, 6); };
    const auto fitted = FitThroughOrigin(SamplesOf(law, -0.8, 1));
    const OriginPolynomial expected = {3, -2, 0, 0.5, 0, -7};
    for (std::size_t j = 0; j < expected.size(); ++j)
    {
        EXPECT_NEAR(fitted[j], expected[j], 1e-8) << j;
    }
}

TEST(FitRising, FindsARisingPolynomialItWasGiven)
{
    // Slope 2x(1 - x)² + x: a sum of Bernstein polynomials with positive weights.
    const auto law = [](double x)
    { return 2 * (x * x / 2 - 2 * x * x * x / 3 + std::pow(x, 4) / 4) + x * x / 2; };
    const auto fitted = FitRising(SamplesOf(law, 0, 1), 0);
    for (double x = 0; x <= 1; x += 0.05)
    {
        EXPECT_NEAR(ValueOf(fitted, x), law(x), 1e-9) << x;
    }
}

TEST(FitRising, NeverFallsEvenWhereTheSamplesDo)
{
    const auto fitted = FitRising(SamplesOf([](double x) { return std::sin(4 * x); }, 0, 1), 0);
    for (double x = 0; x < 0.995; x += 0.005)
    {
        EXPECT_GE(ValueOf(fitted, x + 0.005), ValueOf(fitted, x) - 1e-12) << x;
    }
    EXPECT_GT(ValueOf(fitted, 1), 0.3);
}

TEST(FitRising, KeepsTheLeastSlopeOnAPlateau)
{
    const auto plateau = [](double x) { return x < 0.2 ? 5 * x : 1.0; };
    const auto fitted = FitRising(SamplesOf(plateau, 0, 1), 0.1);
    for (double x = 0.3; x < 0.995; x += 0.01)
    {
        EXPECT_GT((ValueOf(fitted, x + 0.01) - ValueOf(fitted, x)) / 0.01, 0.08) << x;
    }
}

TEST(FitSmallestDeviation, FindsTheBestLineThroughAParabola)
{
    // Of all lines, x - 1/8 stays closest to x² on 0 to 1; it is off by 1/8 at 0, 1/2 and 1.
    const auto line = FitSmallestDeviation(SamplesOf([](double x) { return x * x; }, 0, 1), 2);
    ASSERT_EQ(line.size(), 2U);
    EXPECT_NEAR(line[0], -0.125, 0.01);
    EXPECT_NEAR(line[1], 1, 0.02);
}

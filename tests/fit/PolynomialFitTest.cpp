/// The fit of temperature and bias that work apart, on laws that are written out here.

#include "fit/PolynomialFit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace
{
constexpr double Nominal = 1e6;
constexpr double RatedVolts = 16;

/// A capacitance that falls by 60 % under bias, and by parabola over temperature.
double LawAt(double volts, double celsius)
{
    const double r = volts / RatedVolts;
    const double x = (celsius - 25) / 100;
    return Nominal * (1 - 0.3 * r - 0.3 * r * r) * (1 + 0.02 * x - 0.08 * x * x);
}

std::vector<MeasuredCapacitance> BiasAndTemperature(int temperatures)
{
    std::vector<MeasuredCapacitance> points;
    for (int i = 0; i <= 10; ++i)
    {
        const double volts = RatedVolts * i / 10;
        points.push_back({1, volts, 30, LawAt(volts, 30)});
    }
    for (int i = 0; i < temperatures; ++i)
    {
        const double celsius = -55 + 180.0 * i / (temperatures - 1);
        points.push_back({1, 0, celsius, LawAt(0, celsius)});
    }
    return points;
}

double FittedAt(const PolynomialFit& fit, double volts, double celsius)
{
    return fit.Picofarads * (1 + ValueOf(fit.Change, (celsius - 25) / 100)) *
           (1 - LossAt(fit.Losses, volts / RatedVolts));
}

TEST(FitPolynomial, FindsTheLawItWasGiven)
{
    const auto fit = FitPolynomial(BiasAndTemperature(8), RatedVolts);
    EXPECT_EQ(fit.Degree, 2U);
    EXPECT_NEAR(fit.LeftOut, 0, 1e-6);
    for (const double volts : {0.0, 5.0, 16.0})
    {
        for (const double celsius : {-55.0, 25.0, 100.0})
        {
            EXPECT_NEAR(FittedAt(fit, volts, celsius) / LawAt(volts, celsius), 1, 1e-6);
        }
    }
}

TEST(FitPolynomial, TakesADegreeThatBringsTemperaturesLeftOutCloser)
{
    auto points = BiasAndTemperature(10);
    for (auto& point : points)
    {
        point.Picofarads *= 1 + 0.1 * std::pow((point.Celsius - 25) / 100, 3);
    }
    EXPECT_GE(FitPolynomial(points, RatedVolts).Degree, 5U);
}

TEST(FitPolynomial, IsFlatOverTemperatureWithoutASweep)
{
    auto points = BiasAndTemperature(8);
    points.resize(11);
    const auto fit = FitPolynomial(points, RatedVolts);
    EXPECT_EQ(fit.Degree, 0U);
    EXPECT_EQ(fit.Change, OriginPolynomial{});
    EXPECT_NEAR(fit.Picofarads, LawAt(0, 30), 1e-3 * Nominal);
}

TEST(FitPolynomial, NeverGrowsUnderBias)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> scatter(0.95, 1.05);
    auto points = BiasAndTemperature(8);
    for (auto& point : points)
    {
        point.Picofarads *= scatter(random);
    }
    const auto fit = FitPolynomial(points, RatedVolts);
    for (double r = 0; r < 0.995; r += 0.01)
    {
        EXPECT_LE(LossAt(fit.Losses, r), LossAt(fit.Losses, r + 0.01) + 1e-12) << r;
    }
}

TEST(WritePolynomialFit, WritesPowersOfVoltsAndOfDegrees)
{
    PartValues data{};
    WritePolynomialFit(FitPolynomial(BiasAndTemperature(8), RatedVolts), RatedVolts, data);
    EXPECT_NEAR(data[Value::NominalCapacitance], Nominal, 1e-6 * Nominal);
    EXPECT_NEAR(data[Value::BiasV], -30 / RatedVolts, 1e-5);
    EXPECT_NEAR(data[Value::BiasV2], -30 / (RatedVolts * RatedVolts), 1e-5);
    EXPECT_NEAR(data[Value::TemperatureX], 0.02, 1e-6);
    EXPECT_NEAR(data[Value::TemperatureX2], -8e-4, 1e-8);
    EXPECT_EQ(data[Value::TemperatureX3], 0);
}
} // namespace

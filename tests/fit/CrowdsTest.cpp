/// Points by the ten thousand, on laws that are written out here.

#include "fit/Crowds.h"
#include "fit/PeakFit.h"
#include "fit/PolynomialFit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>

namespace
{
constexpr double RatedVolts = 25;
constexpr std::size_t Many = 100000;

using Law = std::function<double(double volts, double celsius)>;

double FlatLaw(double volts, double celsius)
{
    const double r = volts / RatedVolts;
    const double x = (celsius - 25) / 100;
    return 1e7 * (1 - 0.3 * r - 0.4 * r * r) * (1 + 0.02 * x - 0.1 * x * x);
}

double BellLaw(double volts, double celsius)
{
    const auto bellAt = [](double at) { return std::exp(-1.3 * std::pow(std::abs(at - 15) / 50, 1.65)); };
    const double amplitude = 95 / bellAt(25) * (1 - 0.8 * volts / RatedVolts);
    return 1e7 * (1 + (amplitude * bellAt(celsius) - 95) / 100);
}

/// Anywhere over bias and temperature, each reading 1 % off.
std::vector<MeasuredCapacitance> Scattered(const Law& law)
{
    std::mt19937 random(5);
    std::uniform_real_distribution<double> share(0, 1);
    std::normal_distribution<double> noise(1, 0.01);
    std::vector<MeasuredCapacitance> points;
    for (std::size_t i = 0; i < Many; ++i)
    {
        const double volts = i % 3 == 0 ? 0 : RatedVolts * share(random);
        const double celsius = -30 + 115 * share(random);
        points.push_back({i + 1, volts, celsius, law(volts, celsius) * noise(random)});
    }
    return points;
}

double MissOf(const std::vector<MeasuredCapacitance>& points, const Law& law)
{
    double sum = 0;
    for (const auto& point : points)
    {
        sum += point.Weight * std::pow(law(point.Volts, point.Celsius) / point.Picofarads - 1, 2);
    }
    return sum;
}

TEST(Crowds, LeaveFewPointsAlone)
{
    const std::vector<MeasuredCapacitance> points(UncrowdedPoints, {7, 1, 25, 1e6});
    const auto same = Uncrowded(points, RatedVolts);
    ASSERT_EQ(same.size(), points.size());
    EXPECT_EQ(same.front().Line, 7U);
    EXPECT_EQ(same.front().Weight, 1);
}

TEST(Crowds, MissALawAsTheirPointsDoTogether)
{
    std::vector<MeasuredCapacitance> points;
    for (std::size_t i = 0; i <= UncrowdedPoints; ++i)
    {
        points.push_back({1, 5, 40, i % 2 == 0 ? 1e6 : 1.1e6});
    }
    const auto one = Uncrowded(points, RatedVolts);
    ASSERT_EQ(one.size(), 1U);
    const auto more = [&](double law)
    {
        const auto flat = [law](double, double) { return law; };
        return MissOf(points, flat) - MissOf(one, flat);
    };
    EXPECT_NEAR(more(0.9e6), more(1.3e6), 1e-9);
}

TEST(Crowds, AreFewHoweverManyPointsThereAre)
{
    EXPECT_LT(Uncrowded(Scattered(FlatLaw), RatedVolts).size(), 101U * 59U);
}

TEST(Crowds, KeepThePolynomialLaw)
{
    const auto fit = FitPolynomial(Scattered(FlatLaw), RatedVolts);
    for (const double volts : {0.0, 12.0, 25.0})
    {
        const double fitted =
            fit.Picofarads * (1 + ValueOf(fit.Change, 0.3)) * (1 - LossAt(fit.Losses, volts / RatedVolts));
        EXPECT_NEAR(fitted / FlatLaw(volts, 55), 1, 0.002) << volts;
    }
}

TEST(Crowds, KeepTheBell)
{
    const auto fit = FitPeak(Scattered(BellLaw), RatedVolts, std::nullopt);
    EXPECT_NEAR(fit.PeakC, 15, 0.3);
    EXPECT_NEAR(fit.Picofarads / 1e7, 1, 0.002);
    EXPECT_NEAR(LossAt(fit.Losses, 1), 0.8, 0.002);
}
} // namespace

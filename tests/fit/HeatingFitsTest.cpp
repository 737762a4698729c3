/// The fits of heating by current and by voltage, on laws that are written out here.

#include "fit/CurrentFit.h"
#include "fit/VoltageFit.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
/// Losses in the ceramic fall with frequency and temperature, those in the electrodes rise with both.
double HeatingAt(double hz, double celsius)
{
    const double t = celsius - 20;
    return 2e5 / hz * (1 - 0.008 * t + 3e-5 * t * t) + (1.5 + 3e-8 * hz) * (1 + 0.0039 * t);
}

std::vector<MeasuredRise> Rises(std::initializer_list<double> hertz, std::initializer_list<double> ambients)
{
    std::vector<MeasuredRise> points;
    for (const double hz : hertz)
    {
        for (const double celsius : ambients)
        {
            for (const double amperes : {0.5, 2.0})
            {
                points.push_back({1, 0, celsius, hz, amperes, HeatingAt(hz, celsius) * amperes * amperes});
            }
        }
    }
    return points;
}

TEST(FitCurrent, FindsTheLawItWasGiven)
{
    const auto fit = FitCurrent(Rises({1e4, 1e5, 1e6}, {25, 60, 100}), {true, 2}, 125);
    for (const double hz : {1e4, 5e4, 1e6})
    {
        for (const double celsius : {20.0, 70.0, 125.0})
        {
            EXPECT_NEAR(fit.At(hz, celsius) / HeatingAt(hz, celsius), 1, 1e-6) << hz << ' ' << celsius;
        }
    }
}

TEST(FitCurrent, LeavesOutTheTermThatIsNotTold)
{
    const auto fit = FitCurrent(Rises({1e5, 4e5}, {25}), {false, 0}, 125);
    EXPECT_EQ(fit.Terms[2], 0);
    EXPECT_EQ(fit.Linear, (std::array<double, FrequencyTerms>{}));
    EXPECT_NEAR(fit.At(1e5, 25) / HeatingAt(1e5, 25), 1, 1e-9);
    EXPECT_NEAR(fit.At(4e5, 25) / HeatingAt(4e5, 25), 1, 1e-9);
}

TEST(FitCurrent, HeatsAtEveryTemperatureWhateverWasMeasured)
{
    // A law that falls to nothing at 70 °C.
    std::vector<MeasuredRise> points;
    for (const double hz : {1e4, 1e5, 1e6})
    {
        for (const double celsius : {25.0, 60.0})
        {
            points.push_back({1, 0, celsius, hz, 1, 1e5 / hz * (70 - celsius)});
        }
    }
    const auto fit = FitCurrent(points, {true, 1}, 125);
    EXPECT_GT(fit.At(1e4, 125), 0);
    EXPECT_GT(fit.At(1e6, 125), 0);
}

TEST(WriteCurrentFit, PutsEachTermBesideItsChanges)
{
    PartValues data{};
    WriteCurrentFit({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}, data);
    EXPECT_EQ(data[Value::CurrentPerF], 1);
    EXPECT_EQ(data[Value::CurrentF], 3);
    EXPECT_EQ(data[Value::CurrentTPerF], 4);
    EXPECT_EQ(data[Value::CurrentT2PerF], 7);
    EXPECT_EQ(data[Value::CurrentT], 5);
    EXPECT_EQ(data[Value::CurrentT2F], 9);
}

TEST(FitVoltageTerms, FindsTheLawItWasGiven)
{
    // Rise = 10^-3·(log10 f)^2.5·V^2.2, the more volts to it the warmer and the more bias there is.
    const VoltageTerms known = {.Constant = 0,
                                .Slope = 0,
                                .BiasLinear = -0.2,
                                .BiasSquare = -0.1,
                                .WarmthLinear = 0.001,
                                .WarmthSquare = 0,
                                .Exponent = {}};
    std::vector<MeasuredRise> points;
    for (const double hz : {1e5, 4e5})
    {
        for (const double volts : {1.0, 3.0})
        {
            const double shift = -0.2 * 0.5 - 0.1 * 0.25 - 0.001 * 40;
            const double log = -3 + 2.5 * std::log10(std::log10(hz)) + 2.2 * (std::log10(volts) + shift);
            points.push_back({1, 5, 60, hz, volts, std::pow(10, log)});
        }
    }
    PartValues data{};
    WriteVoltageTerms(FitVoltageTerms(points, 10, known), data);
    EXPECT_NEAR(data[Value::Amplitude], -3, 1e-9);
    EXPECT_NEAR(data[Value::FrequencyExponent], 2.5, 1e-9);
    EXPECT_NEAR(data[Value::VoltageExponent], 2.2, 1e-9);
    EXPECT_NEAR(data[Value::AmplitudeR], 2.2 * -0.2, 1e-9);
    EXPECT_NEAR(data[Value::AmplitudeT], 2.2 * -0.001, 1e-9);
}
} // namespace

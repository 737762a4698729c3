/// The fit of the bell, on a bell that is written out here.

#include "fit/PeakFit.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
constexpr double RatedVolts = 10;
constexpr double Offset = -95;

double BellAt(double r, double celsius)
{
    const double distance = celsius - 15 - 4 * r * r;
    const double decay = (distance < 0 ? 1.2 : 1.5) * (1 - 0.1 * r * r);
    return std::exp(-decay * std::pow(std::abs(distance) / 50, 1.65));
}

double LawAt(double volts, double celsius)
{
    const double r = volts / RatedVolts;
    const double amplitude = -Offset / BellAt(0, 25) * (1 - 0.8 * r + 0.2 * r * r);
    return 1e6 * (1 + (amplitude * BellAt(r, celsius) + Offset) / 100);
}

std::vector<MeasuredCapacitance> Points(bool overBias)
{
    std::vector<MeasuredCapacitance> points;
    for (int i = 0; i <= 10; ++i)
    {
        points.push_back({1, RatedVolts * i / 10, 25, LawAt(RatedVolts * i / 10, 25)});
    }
    for (int i = 0; i < 9; ++i)
    {
        const double celsius = -30 + 115.0 * i / 8;
        points.push_back({1, 0, celsius, LawAt(0, celsius)});
        if (overBias)
        {
            points.push_back({1, RatedVolts, celsius, LawAt(RatedVolts, celsius)});
        }
    }
    return points;
}

TEST(FitPeak, FindsTheBellItWasGiven)
{
    const auto fit = FitPeak(Points(true), RatedVolts, std::nullopt);
    EXPECT_LT(fit.Cost, 0.01);
    EXPECT_NEAR(fit.PeakC, 15, 0.1);
    EXPECT_NEAR(fit.ByBias.Shift, 4, 0.5);
    EXPECT_NEAR(fit.Below.Decay, 1.2, 0.02);
    EXPECT_NEAR(fit.Above.Decay, 1.5, 0.02);
    EXPECT_NEAR(fit.Offset, Offset, 0.5);
    EXPECT_NEAR(LossAt(fit.Losses, 1), 0.6, 0.005);
}

TEST(FitPeak, TakesWhatBiasDoesAsKnown)
{
    const auto fit = FitPeak(Points(false), RatedVolts, PeakByBias{});
    EXPECT_EQ(fit.ByBias.Shift, 0);
    EXPECT_EQ(fit.ByBias.DecayBelow, 0);
    EXPECT_NEAR(fit.PeakC, 15, 0.2);
}

TEST(WritePeakFit, ChangesNothingAtRoomTemperatureWithoutBias)
{
    PartValues data{};
    const auto fit = FitPeak(Points(true), RatedVolts, std::nullopt);
    WritePeakFit(fit, RatedVolts, data);
    const double distance = 25 - data[Value::PeakTemperature];
    EXPECT_NEAR(data[Value::PeakAmplitude] *
                        std::exp(-data[Value::DecayAbove] * std::pow(distance, data[Value::ExponentAbove])) +
                    data[Value::PeakOffset],
                0, 1e-9);
    EXPECT_NEAR(data[Value::PeakTemperatureV2] * RatedVolts * RatedVolts, fit.ByBias.Shift, 1e-9);
    EXPECT_NEAR(data[Value::DecayBelowV2] * RatedVolts * RatedVolts,
                data[Value::DecayBelow] * fit.ByBias.DecayBelow, 1e-9);
    EXPECT_EQ(data[Value::PeakTemperatureV], 0);
}
} // namespace

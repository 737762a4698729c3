#include "stress/PartStress.h"

#include "find/PartFinder.h"
#include "tests/find/FindParts.h"
#include "tests/stress/Waves.h"

#include <gtest/gtest.h>

namespace
{
CurrentLoad LoadOf(const Shape& shape, double hertz)
{
    return LoadOfRecord(EvenRows(shape, 60 / hertz, 1 / hertz / 2000), {});
}

/// At 300 kHz, 1 A in peak. So small a part then swings by more than a thousand volts, which heats it all the
/// same.
CurrentLoad SineLoad()
{
    return LoadOf(Sine(1, 300e3), 300e3);
}

StressConditions Conditions()
{
    return {.BiasVolts = 5, .AmbientC = 25, .HeatResistance = 50};
}

TEST(StressOf, ASineIsWhatTheSearchTells)
{
    const auto part = PlainPart();
    const auto stress = StressOf(part, SineLoad(), Conditions());
    OperatingPoint at{.BiasVolts = 5, .AmbientC = 25, .Kilohertz = 300};
    at.Load = AcLoad{.Kind = Quantity::Current, .Value = static_cast<float>(std::sqrt(0.5))};
    const PartRecord* const candidate = &part;
    const auto found = FindParts({&candidate, 1}, {.At = at}).Parts.front();
    const double rise = found.Known(FoundColumn::Rise);
    EXPECT_NEAR(stress.Rise.value_or(0), rise, 2e-6 * rise);
    EXPECT_NEAR(stress.Body().value_or(0), found.Known(FoundColumn::Body), 1e-5);
    EXPECT_NEAR(stress.AllowedArms().value_or(0), found.Known(FoundColumn::Current), 1e-5);
    EXPECT_DOUBLE_EQ(stress.PermittedRise, found.Known(FoundColumn::PermittedRise));
    EXPECT_DOUBLE_EQ(stress.Capacitance.value_or(0), found.Known(FoundColumn::EffectiveCapacitance));
}

TEST(StressOf, ASmallRippleIsThatOfACapacitor)
{
    const auto load = LoadOf(Sine(1e-4, 300e3), 300e3);
    const auto stress = StressOf(PlainPart(), load, Conditions());
    // 950 pF at 5 V.
    const double peak = 1e-4 / (2 * std::numbers::pi * 300e3 * 950e-12);
    EXPECT_NEAR(stress.Ripple->PeakToPeak, 2 * peak, 1e-3 * peak);
    EXPECT_NEAR(stress.Ripple->Highest, 5 + peak, 1e-3 * peak);
}

TEST(StressOf, EqualPartsShareTheCurrent)
{
    auto at = Conditions();
    const auto alone = StressOf(PlainPart(), SineLoad(), at);
    at.Parallel = 2;
    const auto two = StressOf(PlainPart(), SineLoad(), at);
    EXPECT_NEAR(*two.Rise, *alone.Rise / 4, 1e-12);
    EXPECT_NEAR(two.Arms, alone.Arms / 2, 1e-15);
    EXPECT_NEAR(*two.AllowedArms(), *alone.AllowedArms(), 1e-9);
}

TEST(StressOf, TellsTheLinesThatHeatMost)
{
    const auto stress = StressOf(PlainPart(), LoadOf(Trapezoid(100e3), 100e3), Conditions(), 2);
    ASSERT_EQ(stress.Lines.size(), 3U);
    EXPECT_NEAR(stress.Lines[0].Hertz.value_or(0), 100e3, 1);
    EXPECT_NEAR(stress.Lines[0].Milliohms.value_or(0), 80, 1e-6);
    EXPECT_FALSE(stress.Lines[2].Hertz);
    double rise = 0;
    double share = 0;
    for (const StressLine& line : stress.Lines)
    {
        rise += line.Rise;
        share += line.Share;
    }
    EXPECT_NEAR(rise, *stress.Rise, 1e-9);
    EXPECT_NEAR(share, 1, 1e-9);
}

TEST(StressOf, TellsNoRiseThatRestsOnWhatTheDataDoNotReach)
{
    const auto stress = StressOf(PlainPart(), LoadOf(Sine(1, 2e6), 2e6), Conditions());
    EXPECT_FALSE(stress.Rise);
    EXPECT_FALSE(stress.Margin());
    EXPECT_FALSE(stress.AllowedArms());
    EXPECT_FALSE(stress.WarmCapacitance);
    EXPECT_NEAR(stress.LawRise.value_or(0), 2, 0.01);
    EXPECT_NEAR(stress.OutsideShare(), 1, 1e-6);
    EXPECT_NEAR(stress.RiseAbove.value_or(0), 2, 0.01);
    EXPECT_FALSE(stress.Lines.empty());
}

TEST(StressOf, TellsNothingOfHeatWhereTheLossResistanceIsNotPositive)
{
    auto part = PlainPart();
    part.Data[Value::CurrentF] = -4e-5F;
    const auto stress = StressOf(part, SineLoad(), Conditions());
    EXPECT_FALSE(stress.Rise);
    EXPECT_FALSE(stress.RiseAbove);
    EXPECT_TRUE(stress.Lines.empty());
    EXPECT_TRUE(stress.Capacitance);
}

TEST(StressOf, TellsNoCapacitanceWithoutItsData)
{
    const auto stress = StressOf(WithoutCapacitanceData(), SineLoad(), Conditions());
    EXPECT_TRUE(stress.Rise);
    EXPECT_FALSE(stress.Capacitance);
    EXPECT_FALSE(stress.Ripple);
}

TEST(StressOf, TellsTheCapacitanceOfTheWarmPart)
{
    auto part = PlainPart();
    part.Data[Value::TemperatureX] = -0.5F;
    auto at = Conditions();
    at.BiasVolts = 0;
    const auto stress = StressOf(part, SineLoad(), at);
    EXPECT_NEAR(*stress.WarmCapacitance, 1000 * (1 - 0.005 * *stress.Rise), 1e-3);
    // 4 °C/A² of 10 A peak: far above the 125 °C that the characteristic ends at.
    EXPECT_FALSE(StressOf(part, LoadOf(Sine(10, 300e3), 300e3), at).WarmCapacitance);
}
} // namespace

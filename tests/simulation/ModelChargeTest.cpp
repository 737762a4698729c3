#include "simulation/ModelCharge.h"

#include "calc/Capacitance.h"
#include "tests/simulation/ChargeOfCharts.h"
#include "tests/simulation/ModelParts.h"

#include <gtest/gtest.h>

namespace
{
TEST(ModelCharge, OfAStraightLossOfCapacitanceIsAParabola)
{
    const auto charge = ModelChargeAt(ProductPart(), 25);
    EXPECT_DOUBLE_EQ(charge(0), 0);
    EXPECT_DOUBLE_EQ(charge(4), 4 - 16.0 / 200);
    EXPECT_DOUBLE_EQ(charge(10), 9.5);
}

TEST(ModelCharge, IsOdd)
{
    for (const auto& part : {ProductPart(), PeakedPart()})
    {
        const auto charge = ModelChargeAt(part, 25);
        EXPECT_DOUBLE_EQ(charge(-4), -charge(4));
        EXPECT_DOUBLE_EQ(charge(-14), -charge(14));
    }
}

TEST(ModelCharge, GoesOnStraightBeyondTheRatedVoltage)
{
    // The capacitance at 10 V is 0.9 of the nominal one.
    EXPECT_DOUBLE_EQ(ModelChargeAt(ProductPart(), 25)(15), 9.5 + 5 * 0.9);
    const auto peaked = ModelChargeAt(PeakedPart(), 25);
    const double atRated = CapacitancePointAt(PeakedPart(), 10, 25, CodeView::Eia)->PicoFarads / 1000;
    EXPECT_NEAR(peaked(15) - peaked(10), 5 * atRated, 1e-12);
}

TEST(ModelCharge, IsTheIntegralOfTheChartsCapacitance)
{
    for (const auto* const name :
         {"KTS31NR71A226KA01", "KTS31NB51A476MA01", "KTS216F51E224ZA01", "KTU155F51H222ZA01"})
    {
        const auto& part = SamplePart(name);
        for (const double celsius : {-30.0, 16.0, 25.0, 85.0})
        {
            const auto charge = ModelChargeAt(part, celsius);
            const double rated = part.Data[Value::RatedVoltage];
            for (const double volts : {rated / 7, rated / 2, rated})
            {
                const double expected = ChargeOfCharts(part, volts, celsius);
                EXPECT_NEAR(charge(volts) / expected, 1, 2e-9) << name << ' ' << celsius << ' ' << volts;
            }
        }
    }
}

TEST(ModelCharge, FollowsAPeakThatTheBiasMoves)
{
    // The peak crosses 20 °C at 5 V, and a bias lowers or raises it.
    for (const float slope : {-2.0F, 2.0F})
    {
        const auto part =
            With(With(PeakedPart(), Value::PeakTemperatureV, slope), Value::PeakTemperature, 20 - 5 * slope);
        for (const double celsius : {-20.0, 20.0, 60.0})
        {
            const auto charge = ModelChargeAt(part, celsius);
            EXPECT_NEAR(charge(10) / ChargeOfCharts(part, 10, celsius), 1, 1e-6) << slope << ' ' << celsius;
            EXPECT_NEAR(charge(3) / ChargeOfCharts(part, 3, celsius), 1, 1e-6) << slope << ' ' << celsius;
        }
    }
}

TEST(ModelTemperatures, AreThoseOfTheChartsInEiaCode)
{
    EXPECT_EQ(ModelTemperatures(SamplePart("KTS31NR71A226KA01")), (TemperatureRange{-55, 125}));
    EXPECT_EQ(ModelTemperatures(SamplePart("KTS31NB51A476MA01")), (TemperatureRange{-55, 85}));
    EXPECT_EQ(ModelTemperatures(SamplePart("KTS216F51E224ZA01")), (TemperatureRange{-30, 85}));
    EXPECT_EQ(ModelTemperatures(SamplePart("KTU155F51H222ZA01")), (TemperatureRange{-30, 85}));
}
} // namespace

#include "stress/RippleVoltage.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
/// 1 µF that loses 4 % a volt, or nothing; 10 V, X7R.
PartRecord Part(float percentPerVolt)
{
    PartRecord part{.PartNum = {}, .SizeCode = {}, .Tcc = {"X7R", "R"}};
    part.Data[Value::Capacitance] = 1e6F;
    part.Data[Value::NominalCapacitance] = 1e6F;
    part.Data[Value::RatedVoltage] = 10;
    part.Data[Value::BiasV] = percentPerVolt;
    return part;
}

/// 1 A one way, 1 A the other, 1 µs each.
Waveform Square()
{
    return Waveform({{0, 1}, {1e-6, 1}, {1e-6, -1}, {2e-6, -1}});
}

TEST(StoredCharge, IsTheIntegralOfTheCapacitance)
{
    const StoredCharge law(Part(-4), 25, CodeView::Eia);
    // 1 µF·(V - 0.02·V²).
    EXPECT_NEAR(law.ChargeAt(5), 1e-6 * (5 - 0.5), 1e-13);
    EXPECT_NEAR(law.ChargeAt(-5), -1e-6 * (5 - 0.5), 1e-13);
    EXPECT_NEAR(law.ChargeAt(11), 1e-6 * (10 - 2 + 0.6), 1e-13);
    for (const double volts : {-12.0, -3.3, 0.0, 0.01, 4.0, 9.999, 10.0, 13.0})
    {
        EXPECT_NEAR(law.VoltageAt(law.ChargeAt(volts)), volts, 1e-10);
    }
}

TEST(RippleVoltage, OfASquareCurrentIsATriangle)
{
    const auto charge = ChargeOver(Square(), {0, 2e-6}, 0);
    const auto ripple = RippleVoltageOf(charge, 1, StoredCharge(Part(0.0001F), 25, CodeView::Eia), 5, 0);
    EXPECT_NEAR(ripple.PeakToPeak, 1, 1e-4);
    EXPECT_NEAR(ripple.Highest, 5.5, 1e-4);
}

TEST(RippleVoltage, IsLargerWhereTheBiasTakesCapacitance)
{
    const auto charge = ChargeOver(Square(), {0, 2e-6}, 0);
    const auto ripple = RippleVoltageOf(charge, 1, StoredCharge(Part(-4), 25, CodeView::Eia), 5, 0);
    // The charges of the peaks are 4.5 ± 0.5 µC, of V - 0.02·V² µC.
    const auto volts = [](double charged) { return (1 - std::sqrt(1 - 0.08 * charged)) / 0.04; };
    EXPECT_NEAR(ripple.PeakToPeak, volts(5) - volts(4), 1e-6);
    EXPECT_NEAR(ripple.Highest, volts(5), 1e-6);
}

TEST(RippleVoltage, JumpsByTheResistance)
{
    const auto charge = ChargeOver(Square(), {0, 2e-6}, 0);
    const auto ripple = RippleVoltageOf(charge, 1, StoredCharge(Part(0.0001F), 25, CodeView::Eia), 5, 0.1);
    EXPECT_NEAR(ripple.PeakToPeak, 1.2, 1e-4);
}

TEST(RippleVoltage, IsSharedByEqualParts)
{
    const auto charge = ChargeOver(Square(), {0, 2e-6}, 0);
    const auto ripple = RippleVoltageOf(charge, 0.5, StoredCharge(Part(0.0001F), 25, CodeView::Eia), 5, 0.1);
    EXPECT_NEAR(ripple.PeakToPeak, 0.6, 1e-4);
}
} // namespace

#include "calc/AllowablePower.h"
#include "calc/ParameterLimit.h"
#include "calc/PowerModel.h"
#include "calc/TemperatureRise.h"
#include "tests/calc/NamedRow.h"
#include "tests/calc/PowerParts.h"
#include "tests/partdata/ErrorOf.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{
struct BoundRow
{
    const char* Name;
    double BiasVolts;
    double Bound;
};

class VoltageBound : public testing::TestWithParam<BoundRow>
{
};

TEST_P(VoltageBound, KeepsBiasAndSineWithinTheRatedVoltage)
{
    EXPECT_DOUBLE_EQ(AllowableVoltageBound(10, GetParam().BiasVolts), GetParam().Bound);
}

INSTANTIATE_TEST_SUITE_P(Rows, VoltageBound,
                         testing::Values(BoundRow{"no bias", 0, 3.54},
                                         BoundRow{"half the rated voltage", 5, 3.54},
                                         BoundRow{"above half", 6, 2.828}, BoundRow{"rated voltage", 10, 0}),
                         RowName<BoundRow>);

TEST(VoltageBound, MeetsAtHalfTheRatedVoltage)
{
    EXPECT_NEAR(AllowableVoltageBound(10, std::nextafter(5, 10)), AllowableVoltageBound(10, 5), 0.006);
}

struct LoadRow
{
    const char* Name;
    double Bound;
    bool AtBound;
};

class AllowableLoads : public testing::TestWithParam<LoadRow>
{
};

TEST_P(AllowableLoads, HeatThePartByThePermittedRise)
{
    const auto model = HeatedModel();
    const auto largest = [&](Quantity load) { return AllowableLoad(model, GetParam().Bound, 20, load); };
    const auto current = largest(Quantity::Current);
    const auto voltage = largest(Quantity::RmsVoltage);
    const auto apparent = largest(Quantity::ApparentPower);
    const auto effective = largest(Quantity::EffectivePower);
    for (const std::size_t i : {0U, 1U, 99U, 199U})
    {
        const double hz = voltage.XData[i];
        EXPECT_NEAR(model.kI(hz) * std::pow(current.YData[i], 2), 20, 1e-4);
        const double rise = model.kV(hz) * std::pow(voltage.YData[i], 2.5);
        EXPECT_EQ(voltage.YData[i] == static_cast<float>(GetParam().Bound), GetParam().AtBound);
        EXPECT_EQ(std::abs(rise - 20) > 1e-4, GetParam().AtBound);
        EXPECT_LT(rise, 20.0001);
        EXPECT_NEAR(effective.YData[i] * model.Rth, rise, 1e-4);
        const double amperes = apparent.YData[i] / voltage.YData[i];
        EXPECT_NEAR(model.kI(hz) * amperes * amperes, rise, 1e-4);
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, AllowableLoads,
                         testing::Values(LoadRow{"free", 1000, false}, LoadRow{"at the bound", 0.5, true}),
                         RowName<LoadRow>);

TEST(AllowableLoad, OfNoPermittedRiseIsZero)
{
    for (const auto load :
         {Quantity::Current, Quantity::RmsVoltage, Quantity::ApparentPower, Quantity::EffectivePower})
    {
        const auto curve = AllowableLoad(HeatedModel(), 3.54, 0, load);
        EXPECT_TRUE(curve.HasPoints);
        EXPECT_TRUE(std::ranges::all_of(curve.YData, [](float y) { return y == 0; })) << NameOf(load);
        EXPECT_EQ(curve.Limits, (AxisLimits{.XMax = 1e6F, .YMax = 1, .XMin = 1e4F, .YMin = 0.1F}));
        EXPECT_EQ(curve.ExtraValue, 0);
    }
}

TEST(AllowableLoad, HasPowersOfTenAroundItAndItsLargestAsExtraValue)
{
    // kV = 1 at 10 kHz and 1.5 at 1 MHz: 20^0.4 = 3.314 V down to 2.818 V
    const auto curve = AllowableLoad(HeatedModel(), 1000, 20, Quantity::RmsVoltage);
    EXPECT_EQ(curve.ExtraValue, curve.YData.front());
    EXPECT_FLOAT_EQ(curve.ExtraValue, static_cast<float>(std::pow(20, 0.4)));
    EXPECT_EQ(curve.Limits, (AxisLimits{.XMax = 1e6F, .YMax = 10, .XMin = 1e4F, .YMin = 1}));
}

TEST(AllowableLoad, OfExactly1000EndsThere)
{
    auto model = UnitModel();
    model.Q2 = 20e-6;
    const auto curve = AllowableLoad(model, 10, 20, Quantity::Current);
    ASSERT_EQ(curve.ExtraValue, 1000);
    EXPECT_EQ(curve.Limits.YMax, 1000);
    EXPECT_EQ(curve.Limits.YMin, 100);
}

TEST(AllowableLoad, WhoseAxisNoSingleCanEndIsAnOverflow)
{
    auto model = UnitModel();
    // 20/5e-76 = (2·10^38)² A²; the axis would end at 10^39.
    model.Q2 = 5e-76;
    EXPECT_EQ(ErrorNumberOf([&] { AllowableLoad(model, 10, 20, Quantity::Current); }), 6);
    model.Q2 = 500e-76;
    EXPECT_EQ(AllowableLoad(model, 10, 20, Quantity::Current).Limits.YMax, 1e38F);
}

TEST(AllowableLoad, OfAVoltageBeyondAnyNumberIsAnOverflow)
{
    auto model = UnitModel();
    model.S2 = -1;
    model.S3 = 0.005;
    // kV = 1 / log10 f: 80^200 V at 10 kHz, whatever the bound.
    EXPECT_EQ(ErrorNumberOf([&] { AllowableLoad(model, 10, 20, Quantity::RmsVoltage); }), 6);
}

TEST(AllowableLoad, WithoutAVoltageLawAtTheHighestFrequencyIsADivisionByZero)
{
    auto model = UnitModel();
    // 4^-450 is a number, 6^-450 is zero.
    model.S2 = -450;
    for (const auto load : {Quantity::RmsVoltage, Quantity::ApparentPower, Quantity::EffectivePower})
    {
        EXPECT_EQ(ErrorNumberOf([&] { AllowableLoad(model, 10, 20, load); }), 11) << NameOf(load);
    }
}

TEST(PowerCurves, OfAQuantityThatIsNoLoadAreRefused)
{
    EXPECT_EQ(ErrorNumberOf([] { RiseOverLoad(UnitModel(), 10, frequencyHz, Quantity::Temperature); }), 5);
    EXPECT_EQ(ErrorNumberOf([] { RiseOverFrequency(UnitModel(), 10, Quantity::Frequency, 1); }), 5);
    EXPECT_EQ(ErrorNumberOf([] { AllowableLoad(UnitModel(), 10, 20, Quantity::Capacitance); }), 5);
}

TEST(AllowableLoad, NeedsNoVoltageLawForCurrent)
{
    auto model = UnitModel();
    model.S3 = 0;
    EXPECT_EQ(ErrorNumberOf([&] { AllowableLoad(model, 10, 20, Quantity::Current); }), 0);
    EXPECT_EQ(ErrorNumberOf([&] { AllowableLoad(model, 10, 20, Quantity::EffectivePower); }), 11);
}

TEST(AllowableLoads, AreThoseOfEachQuantity)
{
    for (const double bound : {0.5, 3.0, 50.0})
    {
        const auto model = HeatedModel();
        const auto loads = AllowableLoadsAt(model, bound, 20, frequencyHz);
        const auto one = [&](Quantity load) { return AllowableLoadAt(model, bound, 20, load, frequencyHz); };
        EXPECT_EQ(loads.Arms, one(Quantity::Current));
        EXPECT_EQ(loads.Vrms, one(Quantity::RmsVoltage));
        EXPECT_EQ(loads.VoltAmperes, one(Quantity::ApparentPower));
        EXPECT_EQ(loads.Watts, one(Quantity::EffectivePower));
    }
    // kI = 4, kV = 1.25 at 100 kHz: 20 °C are 5^½ A, 16^0.4 V and 20/50 W.
    const auto free = AllowableLoadsAt(HeatedModel(), 50, 20, frequencyHz);
    EXPECT_NEAR(free.Arms, std::sqrt(5), 1e-6);
    EXPECT_NEAR(free.Vrms, std::pow(16, 0.4), 1e-6);
    EXPECT_NEAR(free.VoltAmperes, std::sqrt(5) * std::pow(16, 0.4), 1e-5);
    EXPECT_NEAR(free.Watts, 0.4, 1e-9);
}
} // namespace

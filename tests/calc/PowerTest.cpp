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
TEST(PowerModel, WeighsFrequencyAndHeatResistance)
{
    auto part = HeatedPart();
    part.Data[Value::CurrentPerF] = 1000;
    part.Data[Value::CurrentF] = 0.25F;
    const auto model = PowerModelOf(part, 0, 20, 100);
    // (1000/2000 + 4 + 2000·0.25)·100/50
    EXPECT_DOUBLE_EQ(model.kI(2000), 1009);
    // log10(10000)·0.25·100/50
    EXPECT_NEAR(model.kV(1e4), 2, 1e-6);
}

TEST(PowerModel, IsQuadraticInTheTemperature)
{
    auto part = HeatedPart();
    part.Data[Value::CurrentPerF] = 1;
    part.Data[Value::CurrentTPerF] = 2;
    part.Data[Value::CurrentT2PerF] = 3;
    part.Data[Value::CurrentT] = 5;
    part.Data[Value::CurrentT2] = 6;
    part.Data[Value::CurrentTF] = 7;
    part.Data[Value::CurrentT2F] = 8;
    const auto model = PowerModelOf(part, 0, 30, 50);
    EXPECT_DOUBLE_EQ(model.Q1, 1 + 20 + 300);
    EXPECT_DOUBLE_EQ(model.Q2, 4 + 50 + 600);
    EXPECT_DOUBLE_EQ(model.Q3, 70 + 800);
}

TEST(PowerModel, HasSurfacesInBiasAndTemperature)
{
    auto part = HeatedPart();
    for (std::size_t i = 0; i < 9; ++i)
    {
        part.Data[47 + i] = static_cast<float>(i + 1);
    }
    // r = 0.5, t = 10: groups 1·0.25 + 2·0.5 + 3, 4·0.25 + 5·0.5 + 6, 7·0.25 + 8·0.5 + 9
    const auto model = PowerModelOf(part, 5, 30, 50);
    EXPECT_DOUBLE_EQ(model.S2, 14.75 + 10 * 9.5 + 100 * 4.25);
}

TEST(PowerModel, TakesConstantsOnlyAt20DegreesWithoutBias)
{
    auto part = HeatedPart();
    for (std::size_t i = 32; i <= 43; ++i)
    {
        part.Data[i] = 1e3F;
    }
    for (const std::size_t i : {44U, 45U, 47U, 48U, 49U, 50U, 51U, 52U, 56U, 57U, 58U, 59U, 60U, 61U})
    {
        part.Data[i] = 1e3F;
    }
    const auto model = PowerModelOf(part, 0, 20, 50);
    EXPECT_EQ(model.Q2, 4);
    EXPECT_NEAR(model.S1, 0.25, 1e-7);
    EXPECT_EQ(model.S2, 1);
    EXPECT_EQ(model.S3, 2.5);
}

TEST(PowerModel, HasACurrentLawOf1WhereItIsNotPositive)
{
    auto model = UnitModel();
    model.Q2 = 0;
    model.Rref = 0;
    EXPECT_EQ(model.kI(frequencyHz), 1);
    model.Q2 = -3;
    EXPECT_EQ(model.kI(frequencyHz), 1);
    model.Q2 = 3;
    model.Rref = -50;
    EXPECT_EQ(model.kI(frequencyHz), 1);
}

TEST(PowerModel, FaultsAtTheStepThatGoesWrong)
{
    auto part = HeatedPart();
    part.Data[Value::RatedVoltage] = 0;
    EXPECT_EQ(ErrorNumberOf([&] { PowerModelOf(part, 0, 20, 50); }), 11);
    part = HeatedPart();
    part.Data[Value::Amplitude] = 400;
    EXPECT_EQ(ErrorNumberOf([&] { PowerModelOf(part, 0, 20, 50); }), 6);
    part = HeatedPart();
    part.Data[Value::CurrentT2PerF] = std::numeric_limits<float>::infinity();
    EXPECT_EQ(ErrorNumberOf([&] { PowerModelOf(part, 0, 20, 50); }), 6);
    auto model = UnitModel();
    model.Rref = 0;
    EXPECT_EQ(ErrorNumberOf([&] { model.kI(frequencyHz); }), 11);
    EXPECT_EQ(ErrorNumberOf([&] { model.kV(frequencyHz); }), 11);
    EXPECT_EQ(ErrorNumberOf([&] { UnitModel().kI(0); }), 11);
    EXPECT_EQ(ErrorNumberOf([&] { UnitModel().kV(0); }), 5);
    EXPECT_EQ(ErrorNumberOf([&] { UnitModel().kV(-1); }), 5);
    // 5^200·1e200 at 100 kHz, each of which is a number
    model = UnitModel();
    model.S1 = 1e200;
    model.S2 = 200;
    EXPECT_EQ(ErrorNumberOf([&] { model.kV(frequencyHz); }), 6);
}

TEST(PowerModel, HasAVoltageLawFromTheFirstHertzOn)
{
    auto model = UnitModel();
    model.S2 = 1;
    EXPECT_EQ(model.kV(1), 0);
    EXPECT_DOUBLE_EQ(model.kV(10), 1);
}

struct AllowRow
{
    const char* Name;
    float MaxC;
    float AmbientC;
    double Rise;
};

class PermittedRise : public testing::TestWithParam<AllowRow>
{
};

TEST_P(PermittedRise, ShrinksTowardsTheUpperTemperature)
{
    EXPECT_EQ(dTallow(GetParam().MaxC, GetParam().AmbientC), GetParam().Rise);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PermittedRise,
    testing::Values(AllowRow{"well below", 125, 25, 20}, AllowRow{"just below the last 20", 125, 104.9F, 20},
                    AllowRow{"at the last 20", 125, 105, 20}, AllowRow{"within the last 20", 125, 110, 15},
                    AllowRow{"at the upper temperature", 125, 125, 0}, AllowRow{"above it", 125, 125.5F, 0},
                    // 1e-7 - 20 is -20 as a single, so that -20 is not below it.
                    AllowRow{"compared with a single", 1e-7F, -20, double{1e-7F} + 20}),
    RowName<AllowRow>);

TEST(RiseOverLoad, OfCurrentEndsAt80Degrees)
{
    auto model = UnitModel();
    model.Q2 = 0;
    const auto curve = RiseOverLoad(model, 10, frequencyHz, Quantity::Current);
    EXPECT_FLOAT_EQ(curve.XData.back(), std::sqrt(80.0F));
    EXPECT_EQ(curve.YData.back(), 80);
    EXPECT_EQ(curve.XData.front(), 0);
    EXPECT_EQ(curve.YData.front(), 0);
    EXPECT_EQ(curve.Limits, (AxisLimits{.XMax = 9, .YMax = 100, .XMin = 0, .YMin = 0}));
}

TEST(RiseOverLoad, OfVoltageEndsAtTheBoundOrAt80Degrees)
{
    const auto bounded = RiseOverLoad(UnitModel(), 10, frequencyHz, Quantity::RmsVoltage);
    EXPECT_FLOAT_EQ(bounded.XData.back(), 3.536F);
    EXPECT_FLOAT_EQ(bounded.YData.back(), 3.536F * 3.536F);
    EXPECT_EQ(bounded.Limits.YMax, 20);
    const auto hot = RiseOverLoad(UnitModel(), 100, frequencyHz, Quantity::RmsVoltage);
    EXPECT_FLOAT_EQ(hot.XData.back(), std::sqrt(80.0F));
    EXPECT_EQ(hot.YData.back(), 80);
}

TEST(RiseOverLoad, OfVoltageWithoutAnExponentIsTheSameEverywhere)
{
    auto model = UnitModel();
    model.S3 = 0;
    const auto curve = RiseOverLoad(model, 10, frequencyHz, Quantity::RmsVoltage);
    EXPECT_TRUE(std::ranges::all_of(curve.YData, [](float y) { return y == 1; }));
}

TEST(RiseOverLoad, WhoseLoadsNoSingleHoldsIsAnOverflow)
{
    auto model = UnitModel();
    // (80/1e-80)^½ = 8.9e40 A
    model.Q2 = 1e-80;
    EXPECT_EQ(ErrorNumberOf([&] { RiseOverLoad(model, 10, frequencyHz, Quantity::Current); }), 6);
    EXPECT_EQ(ErrorNumberOf([&] { RiseOverFrequency(model, 10, Quantity::Current, 1); }), 6);
}

TEST(RiseOverLoad, OfApparentPowerFollowsBothLaws)
{
    const auto model = HeatedModel();
    const double kI = model.kI(frequencyHz);
    const double kV = model.kV(frequencyHz);
    for (const double ratedVolts : {5.0, 500.0})
    {
        const auto curve = RiseOverLoad(model, ratedVolts, frequencyHz, Quantity::ApparentPower);
        for (const std::size_t i : {1U, 50U, 199U})
        {
            const double amperes = std::sqrt(curve.YData[i] / kI);
            const double volts = std::pow(curve.YData[i] / kV, 1 / 2.5);
            EXPECT_NEAR(amperes * volts, curve.XData[i], 1e-6 * curve.XData[i]);
        }
    }
}

TEST(RiseOverLoad, OfApparentPowerEndsAtTheBoundOrAt80Degrees)
{
    // 3.536 V, a rise of 3.536² and a current of 3.536 A
    const auto bounded = RiseOverLoad(UnitModel(), 10, frequencyHz, Quantity::ApparentPower);
    EXPECT_FLOAT_EQ(bounded.XData.back(), 3.536F * 3.536F);
    EXPECT_FLOAT_EQ(bounded.YData.back(), 3.536F * 3.536F);
    const auto hot = RiseOverLoad(UnitModel(), 100, frequencyHz, Quantity::ApparentPower);
    EXPECT_FLOAT_EQ(hot.XData.back(), 80);
    EXPECT_EQ(hot.YData.back(), 80);
}

TEST(RiseOverLoad, OfEffectivePowerIsALine)
{
    const auto curve = RiseOverLoad(UnitModel(), 10, frequencyHz, Quantity::EffectivePower);
    EXPECT_FLOAT_EQ(curve.XData.back(), 1.6F);
    EXPECT_EQ(curve.YData.back(), 80);
    EXPECT_FLOAT_EQ(curve.YData[100], 80 * 100 / 199.0F);
}

TEST(RiseOverLoad, BearsAnUnusedFrequencyOfZero)
{
    EXPECT_EQ(ErrorNumberOf([] { RiseOverLoad(UnitModel(), 10, 0, Quantity::EffectivePower); }), 0);
    EXPECT_EQ(ErrorNumberOf([] { RiseOverLoad(UnitModel(), 10, 0, Quantity::Current); }), 11);
}

TEST(RiseOverLoad, FaultsWhereThePowerHasNoValue)
{
    auto model = UnitModel();
    model.S3 = -2;
    EXPECT_EQ(ErrorNumberOf([&] { RiseOverLoad(model, 10, frequencyHz, Quantity::RmsVoltage); }), 5);
    EXPECT_EQ(ErrorNumberOf([&] { RiseOverLoad(model, 10, frequencyHz, Quantity::ApparentPower); }), 11);
    model.S3 = 0;
    EXPECT_EQ(ErrorNumberOf([&] { RiseOverLoad(model, 10, frequencyHz, Quantity::ApparentPower); }), 11);
}

struct LimitRow
{
    const char* Name;
    Quantity Load;
    double RatedVolts;
    double Limit;
};

class LargestParameter : public testing::TestWithParam<LimitRow>
{
protected:
    static auto RiseAt(float parameter)
    {
        return RiseOverFrequency(HeatedModel(), GetParam().RatedVolts, GetParam().Load, parameter);
    }
};

TEST_P(LargestParameter, IsPermittedAndTheNextRefused)
{
    const auto limit = static_cast<float>(GetParam().Limit);
    EXPECT_TRUE(std::holds_alternative<Curve>(RiseAt(limit * 0.999999F)));
    EXPECT_TRUE(std::holds_alternative<Curve>(RiseAt(0)));
    const auto above = RiseAt(limit * 1.000001F);
    ASSERT_TRUE(std::holds_alternative<ParameterRefusal>(above));
    EXPECT_NEAR(std::get<ParameterRefusal>(above).Limit, GetParam().Limit, 1e-6 * GetParam().Limit);
    EXPECT_TRUE(std::holds_alternative<ParameterRefusal>(RiseAt(-1e-6F)));
}

TEST_P(LargestParameter, IsShownAsANumberThatIsPermitted)
{
    const auto refusal = std::get<ParameterRefusal>(RiseAt(1e9F));
    EXPECT_LE(refusal.Shown, refusal.Limit * (1 + 1e-7));
    EXPECT_GT(refusal.Shown, refusal.Limit * 0.999);
    EXPECT_TRUE(std::holds_alternative<Curve>(RiseAt(refusal.Shown)));
}

// The hottest frequency is 1 MHz, where log10 f = 6, kI = 4 and kV = 1.5.
INSTANTIATE_TEST_SUITE_P(Rows, LargestParameter,
                         testing::Values(LimitRow{"current", Quantity::Current, 10, std::sqrt(20)},
                                         LimitRow{"voltage at the bound", Quantity::RmsVoltage, 10, 3.536},
                                         LimitRow{"voltage below the bound", Quantity::RmsVoltage, 100,
                                                  std::pow(80 / 1.5, 0.4)},
                                         LimitRow{"apparent power", Quantity::ApparentPower, 100,
                                                  std::sqrt(20) * std::pow(80 / 1.5, 0.4)},
                                         // at the bound a cooler part carries less current: 10 kHz, kV = 1
                                         LimitRow{"apparent power at the bound", Quantity::ApparentPower, 10,
                                                  3.536 * std::sqrt(std::pow(3.536, 2.5) / 4)},
                                         LimitRow{"effective power", Quantity::EffectivePower, 10, 1.6}),
                         RowName<LimitRow>);

TEST(RiseOverFrequency, RunsEvenlyInTheLogarithm)
{
    const auto curve = std::get<Curve>(RiseOverFrequency(HeatedModel(), 10, Quantity::RmsVoltage, 2));
    EXPECT_EQ(curve.XData.front(), 1e4F);
    EXPECT_EQ(curve.XData.back(), 1e6F);
    EXPECT_FLOAT_EQ(curve.XData[1], static_cast<float>(std::exp(std::log(1e4) + std::log(100.0) / 199)));
    EXPECT_FLOAT_EQ(curve.YData.front(), static_cast<float>(std::pow(2, 2.5)));
    EXPECT_FLOAT_EQ(curve.YData.back(), static_cast<float>(1.5 * std::pow(2, 2.5)));
    EXPECT_EQ(curve.Limits, (AxisLimits{.XMax = 1e6F, .YMax = 10, .XMin = 1e4F, .YMin = 0}));
}

TEST(RiseOverFrequency, EndsTheYAxisAtTheNextTenOrAt80)
{
    const auto limits = [](float amperes)
    { return std::get<Curve>(RiseOverFrequency(UnitModel(), 10, Quantity::Current, amperes)).Limits.YMax; };
    EXPECT_EQ(limits(0), 10);
    EXPECT_EQ(limits(4), 20);
    EXPECT_EQ(limits(8.5F), 80);
    EXPECT_EQ(limits(static_cast<float>(std::sqrt(80.0))), 80);
}

TEST(RiseOverFrequency, KeepsTheLineOfTheLargestParameterOnTheChart)
{
    for (const double rth : {30.0, 49.0, 70.0, 123.0, 333.0})
    {
        auto model = UnitModel();
        model.Rth = rth;
        const auto limit = static_cast<float>(80 / rth);
        const auto curve = std::get<Curve>(RiseOverFrequency(model, 10, Quantity::EffectivePower, limit));
        EXPECT_LE(std::ranges::max(curve.YData), 80) << rth;
        EXPECT_NEAR(curve.YData.front(), 80, 1e-4) << rth;
    }
}

TEST(RiseOverFrequency, StoresARiseThatTheRoundingOfItsCurrentLiftsAs80)
{
    int lifted = 0;
    for (int kI = 1; kI <= 50; ++kI)
    {
        auto model = UnitModel();
        model.Q2 = kI;
        const auto limit = static_cast<float>(std::sqrt(80.0 / kI));
        lifted += static_cast<float>(double{limit} * limit * kI) > 80 ? 1 : 0;
        const auto curve = std::get<Curve>(RiseOverFrequency(model, 10, Quantity::Current, limit));
        EXPECT_LE(std::ranges::max(curve.YData), 80) << kI;
    }
    EXPECT_GT(lifted, 0);
}

TEST(RiseOverFrequency, OfARiseThatNoSingleHoldsIsAnOverflow)
{
    auto model = UnitModel();
    model.S3 = -1;
    // The rise is 1/V.
    EXPECT_EQ(ErrorNumberOf([&] { RiseOverFrequency(model, 10, Quantity::RmsVoltage, 1e-39F); }), 6);
}

TEST(RiseOverFrequency, ShowsARiseAsItIsThatNoRoundingLiftsOverTheCeiling)
{
    auto model = UnitModel();
    model.S3 = -1;
    // The rise is 1/V: 80 °C at 0.0125 V, the largest permitted voltage, and 100 °C at 0.01 V.
    const auto curve = std::get<Curve>(RiseOverFrequency(model, 10, Quantity::RmsVoltage, 0.01F));
    EXPECT_FLOAT_EQ(curve.YData.front(), 100);
    EXPECT_EQ(curve.Limits.YMax, 80);
}

struct CutRow
{
    const char* Name;
    float Number;
    float Cut;
};

class CutNumber : public testing::TestWithParam<CutRow>
{
};

TEST_P(CutNumber, KeepsFourDigitsAndIsNeverLarger)
{
    EXPECT_EQ(CutToFourDigits(GetParam().Number), GetParam().Cut);
    EXPECT_LE(CutToFourDigits(GetParam().Number), GetParam().Number);
}

INSTANTIATE_TEST_SUITE_P(Rows, CutNumber,
                         testing::Values(CutRow{"zero", 0, 0}, CutRow{"short stays", 0.3F, 0.3F},
                                         CutRow{"four digits stay", 9.931F, 9.931F},
                                         CutRow{"never up", 9.9319F, 9.931F},
                                         CutRow{"small", 0.00025049F, 0.0002504F},
                                         CutRow{"large", 123456, 123400},
                                         CutRow{"tiny", 1.23456e-20F, 1.234e-20F}),
                         RowName<CutRow>);

TEST(ParameterRefusalMessage, ShowsThePermittedRange)
{
    const auto refusal = RefuseLoad(15.49F, 9.9315671);
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->Message, "Parameter is invalid!\r\nPlease enter a Number from 0 to 9.931");
}

TEST(LossResistance, IsWhatTheCurrentHeats)
{
    // 4 °C/A² at 50 °C/W are 4/50 W/A², whatever the heat resistance in use.
    EXPECT_NEAR(*HeatedModel().LossResistance(frequencyHz), 80, 1e-9);
    EXPECT_NEAR(*PowerModelOf(HeatedPart(), 0, 20, 10).LossResistance(frequencyHz), 80, 1e-9);
    auto model = UnitModel();
    model.Q1 = 1e5;
    model.Q3 = 2e-5;
    EXPECT_NEAR(*model.LossResistance(frequencyHz), (1 + 1 + 2) / 50.0 * 1000, 1e-9);
}

TEST(LossResistance, HasNoValueWhereNothingHeats)
{
    auto model = UnitModel();
    model.Q2 = 0;
    EXPECT_EQ(model.LossResistance(frequencyHz), std::nullopt);
    model.Q2 = -1;
    EXPECT_EQ(model.LossResistance(frequencyHz), std::nullopt);
    model.Q2 = 1;
    model.Rref = 0;
    EXPECT_EQ(ErrorNumberOf([&] { model.LossResistance(frequencyHz); }), 11);
}
} // namespace

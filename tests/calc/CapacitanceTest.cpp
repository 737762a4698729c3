#include "calc/Capacitance.h"
#include "calc/Calculate.h"
#include "calc/CapacitanceAxes.h"
#include "partdata/RunTimeError.h"
#include "tests/calc/NamedRow.h"
#include "tests/partdata/ErrorOf.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{
/// 1000 pF, 10 V; 0.1 % per °C and -2 % per volt.
PartRecord LinearPart(std::string_view tcc = "X7R")
{
    PartRecord part;
    part.PartNum[0] = "HVX0805";
    part.Tcc[0] = tcc;
    part.Data[Value::NominalCapacitance] = 1000;
    part.Data[Value::RatedVoltage] = 10;
    part.Data[Value::BiasV] = -2;
    part.Data[Value::TemperatureX] = 0.125F;
    return part;
}

/// 1000 pF, 10 V; bell of 100 % at 25 °C over -100 %, falling as exp(-0.2·ΔT) below and exp(-0.01·ΔT²) above.
PartRecord PeakedPart()
{
    auto part = LinearPart("Y5V");
    part.Data[Value::PeakAmplitude] = 100;
    part.Data[Value::PeakOffset] = -100;
    part.Data[Value::PeakTemperature] = 25;
    part.Data[Value::DecayBelow] = 0.2F;
    part.Data[Value::DecayAbove] = 0.01F;
    part.Data[Value::ExponentBelow] = 1;
    part.Data[Value::ExponentAbove] = 2;
    return part;
}

float FirstChange(const PartRecord& part, float ambientC, CodeView view)
{
    return CalcCapDCVoltage(part, ambientC, Quantity::CapacitanceChange, view).YData[0];
}

struct RangeRow
{
    const char* Name;
    std::string_view Tcc;
    CodeView View;
    float MinC;
    float MaxC;
};

class TemperatureSweep : public testing::TestWithParam<RangeRow>
{
};

TEST_P(TemperatureSweep, HasBothEndsOfTheRange)
{
    const auto& row = GetParam();
    auto part = PeakedPart();
    part.Tcc[0] = row.Tcc;
    const auto curve = CalcCapTemperature(part, 0, Quantity::CapacitanceChange, row.View);
    ASSERT_TRUE(curve.HasPoints);
    EXPECT_EQ(curve.XData.front(), row.MinC);
    EXPECT_EQ(curve.XData.back(), row.MaxC);
    EXPECT_TRUE(std::ranges::is_sorted(curve.XData));
}

INSTANTIATE_TEST_SUITE_P(Rows, TemperatureSweep,
                         testing::Values(RangeRow{"X7R in EIA", "X7R", CodeView::Eia, -55, 125},
                                         RangeRow{"X7R in JIS", "X7R", CodeView::Jis, -55, 125},
                                         RangeRow{"X5R in EIA", "X5R", CodeView::Eia, -55, 85},
                                         RangeRow{"X5R in JIS", "X5R", CodeView::Jis, -25, 85},
                                         RangeRow{"Y5V in EIA", "Y5V", CodeView::Eia, -30, 85},
                                         RangeRow{"Y5V in JIS", "Y5V", CodeView::Jis, -25, 85}),
                         RowName<RangeRow>);

TEST(PolynomialModel, CombinesTemperatureAndBias)
{
    // 10 V: b = -20. -55 °C: p = -10, c = 2 - 20 - 10. 125 °C: p = 12.5, c = -2.5 - 20 + 12.5.
    const auto curve = CalcCapTemperature(LinearPart(), 10, Quantity::CapacitanceChange, CodeView::Eia);
    EXPECT_FLOAT_EQ(curve.YData.front(), -28);
    EXPECT_FLOAT_EQ(curve.YData.back(), -10);
    EXPECT_EQ(curve.Limits, (AxisLimits{.XMax = 125, .YMax = -10, .XMin = -75, .YMin = -30}));
}

TEST(PolynomialModel, ShowsCapacitanceOfTheCombinedChange)
{
    const auto curve = CalcCapTemperature(LinearPart(), 10, Quantity::Capacitance, CodeView::Eia);
    EXPECT_FLOAT_EQ(curve.YData.front(), 720);
    EXPECT_FLOAT_EQ(curve.YData.back(), 900);
    EXPECT_EQ(curve.Limits.YMax, 1000);
    EXPECT_EQ(curve.Limits.YMin, 700);
}

TEST(UnlistedCharacteristic, WithoutANumberAsRatedVoltageIsAnOverflow)
{
    PartRecord part;
    part.Tcc = {"C0G", "CH"};
    part.Data[Value::RatedVoltage] = std::numeric_limits<float>::quiet_NaN();
    ChartRecord record;
    record.ChartType = 3;
    record.XAxisName = "DC Bias Voltage";
    record.YAxisName = "Capacitance";
    try
    {
        Calculate(part, record, CodeView::Eia);
        FAIL() << "no error";
    }
    catch (const RunTimeError& error)
    {
        EXPECT_EQ(error.Number(), 6);
    }
}

TEST(PolynomialModel, RefersTo20DegreesInJis)
{
    // At 20 °C p = -0.625, C20 = 993.75 pF; at -55 °C and 10 V C = 720 pF.
    const auto curve = CalcCapTemperature(LinearPart(), 10, Quantity::CapacitanceChange, CodeView::Jis);
    EXPECT_FLOAT_EQ(curve.YData.front(), static_cast<float>((720 - 993.75) / 993.75 * 100));
    const auto capacitance = CalcCapTemperature(LinearPart(), 10, Quantity::Capacitance, CodeView::Jis);
    EXPECT_FLOAT_EQ(capacitance.YData.front(), 720);
}

TEST(PolynomialModel, HasAllSixPowers)
{
    auto part = LinearPart();
    for (std::size_t i = 3; i <= 8; ++i)
    {
        part.Data[i] = static_cast<float>(i);
    }
    part.Data[Value::RatedVoltage] = 2;
    // 3·64 + 4·32 + 5·16 + 6·8 + 7·4 + 8·2 at 2 V and 25 °C
    const auto curve = CalcCapDCVoltage(part, 25, Quantity::CapacitanceChange, CodeView::Eia);
    EXPECT_FLOAT_EQ(curve.YData.back(), 492);
    EXPECT_EQ(curve.XData.back(), 2);
}

TEST(ReferencePoint, IsAt25DegreesInEiaAndAt20InJis)
{
    EXPECT_EQ(FirstChange(LinearPart(), 25, CodeView::Eia), 0);
    EXPECT_EQ(FirstChange(LinearPart(), 20, CodeView::Jis), 0);
    EXPECT_EQ(FirstChange(PeakedPart(), 25, CodeView::Eia), 0);
    EXPECT_EQ(FirstChange(PeakedPart(), 20, CodeView::Jis), 0);
    EXPECT_NE(FirstChange(LinearPart(), 20, CodeView::Eia), 0);
    EXPECT_NE(FirstChange(LinearPart(), 25, CodeView::Jis), 0);
}

TEST(VoltageSweep, RunsFromZeroToTheRatedVoltage)
{
    const auto curve = CalcCapDCVoltage(LinearPart(), 25, Quantity::Capacitance, CodeView::Eia);
    EXPECT_EQ(curve.XData.front(), 0);
    EXPECT_EQ(curve.XData.back(), 10);
    EXPECT_FLOAT_EQ(curve.YData.front(), 1000);
    EXPECT_FLOAT_EQ(curve.YData.back(), 800);
    EXPECT_EQ(curve.Limits, (AxisLimits{.XMax = 10, .YMax = 1100, .XMin = 0, .YMin = 800}));
}

TEST(PeakedModel, HasItsOwnDecayOnEitherSide)
{
    EXPECT_FLOAT_EQ(FirstChange(PeakedPart(), 35, CodeView::Eia),
                    static_cast<float>(100 * std::exp(-1.0) - 100));
    EXPECT_FLOAT_EQ(FirstChange(PeakedPart(), 15, CodeView::Eia),
                    static_cast<float>(100 * std::exp(-2.0) - 100));
}

TEST(PeakedModel, ScalesThePeakByTheBias)
{
    // 10 V: B = -20, so the peak is 80 and the change at 25 °C -20.
    const auto curve = CalcCapDCVoltage(PeakedPart(), 25, Quantity::CapacitanceChange, CodeView::Eia);
    EXPECT_FLOAT_EQ(curve.YData.back(), -20);
}

TEST(PeakedModel, ShowsCapacitanceOfTheNominalValue)
{
    // 55 °C below the peak: 1000·exp(-0.2·55) pF, whatever capacitance the lists show.
    auto part = PeakedPart();
    part.Data[Value::Capacitance] = 4700;
    const auto curve = CalcCapTemperature(part, 0, Quantity::Capacitance, CodeView::Eia);
    EXPECT_FLOAT_EQ(curve.YData.front(), static_cast<float>(1000 * std::exp(-11.0)));
    const auto overBias = CalcCapDCVoltage(part, -30, Quantity::Capacitance, CodeView::Eia);
    EXPECT_FLOAT_EQ(overBias.YData.front(), static_cast<float>(1000 * std::exp(-11.0)));
}

TEST(PeakedModel, MovesThePeakWithTheBias)
{
    auto part = PeakedPart();
    part.Data[Value::BiasV] = 0;
    part.Data[Value::PeakTemperatureV2] = 0.25F;
    part.Data[Value::PeakTemperatureV] = 1;
    // 10 V: the peak is at 25 + 10 + 25 = 60 °C.
    EXPECT_NEAR(CalcCapDCVoltage(part, 60, Quantity::CapacitanceChange, CodeView::Eia).YData.back(), 0, 1e-9);
}

TEST(PeakedModel, RefersToItsOwnFlankAt20Degrees)
{
    auto part = PeakedPart();
    part.Data[Value::PeakTemperature] = 20;
    EXPECT_EQ(FirstChange(part, 20, CodeView::Jis), 0);
    part.Data[Value::PeakTemperature] = 10;
    // Peak below 20 °C: p20 = 100·exp(-0.01·100) - 100, C20 = 1000·exp(-1); the peak is e times as high.
    EXPECT_FLOAT_EQ(FirstChange(part, 10, CodeView::Jis), static_cast<float>((std::exp(1.0) - 1) * 100));
}

TEST(UnlistedCharacteristic, HasAxesButNoPoints)
{
    const auto curve = CalcCapTemperature(LinearPart("X6S"), 0, Quantity::CapacitanceChange, CodeView::Eia);
    EXPECT_FALSE(curve.HasPoints);
    EXPECT_EQ(curve.Limits, (AxisLimits{.XMax = 0, .YMax = 10, .XMin = 0, .YMin = 0}));
    const auto overBias = CalcCapDCVoltage(LinearPart("X6S"), 25, Quantity::Capacitance, CodeView::Eia);
    EXPECT_FALSE(overBias.HasPoints);
    EXPECT_EQ(overBias.Limits, (AxisLimits{.XMax = 10, .YMax = 0, .XMin = 0, .YMin = 0}));
}

TEST(SpecialPart, OfAnUnlistedCharacteristicHasAllPointsAtZero)
{
    auto part = LinearPart("Z5U");
    part.PartNum[0] = "KTS188F51H102ZA01";
    const auto curve = CalcCapTemperature(part, 0, Quantity::CapacitanceChange, CodeView::Eia);
    ASSERT_TRUE(curve.HasPoints);
    EXPECT_TRUE(std::ranges::all_of(curve.XData, [](float x) { return x == 0; }));
    EXPECT_TRUE(std::ranges::all_of(curve.YData, [](float y) { return y == -3.125F; }));
}

TEST(SpecialPart, OfY5VFollowsThePolynomial)
{
    auto part = PeakedPart();
    part.PartNum[0] = "KTU155F51H222ZA01";
    EXPECT_EQ(CapacitanceModelOf(part), CapacitanceModel::Polynomial);
    EXPECT_FLOAT_EQ(FirstChange(part, 35, CodeView::Eia), 1.25F);
    part.PartNum[0] = "ktu155f51h222za01";
    EXPECT_EQ(CapacitanceModelOf(part), CapacitanceModel::Peaked);
}

TEST(OtherYAxis, IsRefused)
{
    EXPECT_EQ(ErrorNumberOf([] { CalcCapTemperature(LinearPart(), 0, Quantity::Current, CodeView::Eia); }),
              5);
}

TEST(CapacitanceFault, OfAPowerWithoutValueIs5)
{
    auto part = PeakedPart();
    part.Data[Value::ExponentAbove] = -1;
    EXPECT_EQ(ErrorNumberOf([&] { FirstChange(part, 25, CodeView::Eia); }), 5);
    EXPECT_EQ(ErrorNumberOf([&] { FirstChange(part, 26, CodeView::Eia); }), 0);
}

TEST(CapacitanceFault, OfAPowerBeyondAnyNumberIs6)
{
    auto part = PeakedPart();
    part.Data[Value::ExponentAbove] = 400;
    // 10 °C above the peak: 10^400
    EXPECT_EQ(ErrorNumberOf([&] { FirstChange(part, 35, CodeView::Eia); }), 6);
    EXPECT_EQ(ErrorNumberOf([&] { FirstChange(part, 25, CodeView::Eia); }), 0);
}

TEST(CapacitanceFault, OfAReferenceBeyondAnyNumberIs6InJisOnly)
{
    auto part = PeakedPart();
    part.Data[Value::PeakTemperature] = 10;
    part.Data[Value::DecayAbove] = -100;
    // At 20 °C, 10 °C above the peak, exp(100·10²); at the peak exp(0).
    const auto show = [&](CodeView view) { CalcCapDCVoltage(part, 10, Quantity::Capacitance, view); };
    EXPECT_EQ(ErrorNumberOf([&] { show(CodeView::Jis); }), 6);
    EXPECT_EQ(ErrorNumberOf([&] { show(CodeView::Eia); }), 0);
}

TEST(CapacitanceFault, OfTheFirstPointComesBeforeThatOfAZeroReference)
{
    auto part = PeakedPart();
    part.Data[Value::NominalCapacitance] = 0;
    part.Data[Value::PeakTemperature] = -25;
    part.Data[Value::ExponentAbove] = -1;
    // The sweep of the JIS view starts at the peak, where 0 to the power -1 has no value.
    EXPECT_EQ(ErrorNumberOf([&] { CalcCapTemperature(part, 0, Quantity::CapacitanceChange, CodeView::Jis); }),
              5);
    // exp(1e4/5) at the start, 5 °C above the peak, has none either; exp(1e4/50) at 20 °C has.
    part.Data[Value::PeakTemperature] = -30;
    part.Data[Value::DecayAbove] = -1e4F;
    EXPECT_EQ(ErrorNumberOf([&] { CalcCapTemperature(part, 0, Quantity::CapacitanceChange, CodeView::Jis); }),
              6);
    part.Data[Value::DecayAbove] = 1;
    EXPECT_EQ(ErrorNumberOf([&] { CalcCapTemperature(part, 0, Quantity::CapacitanceChange, CodeView::Jis); }),
              11);
}

TEST(CapacitanceFault, OfAZeroReferenceIs11InJisOnly)
{
    auto part = LinearPart();
    part.Data[Value::NominalCapacitance] = 0;
    EXPECT_EQ(ErrorNumberOf([&] { FirstChange(part, 25, CodeView::Jis); }), 11);
    EXPECT_EQ(ErrorNumberOf([&] { FirstChange(part, 25, CodeView::Eia); }), 0);
}

TEST(CapacitanceFault, OfAValueThatIsNotFiniteIs6)
{
    auto part = LinearPart();
    part.Data[Value::TemperatureX] = std::numeric_limits<float>::infinity();
    EXPECT_EQ(ErrorNumberOf([&] { FirstChange(part, 25, CodeView::Eia); }), 6);
    part = LinearPart();
    part.Data[Value::NominalCapacitance] = 3e38F;
    part.Data[Value::TemperatureX] = 10;
    EXPECT_EQ(ErrorNumberOf([&] { CalcCapDCVoltage(part, 125, Quantity::Capacitance, CodeView::Eia); }), 6);
}

TEST(CapacitanceFault, OfAValueFarBelowZeroIs6)
{
    auto part = LinearPart();
    part.Data[Value::NominalCapacitance] = 3e38F;
    part.Data[Value::TemperatureX] = -10;
    // 125 °C: p = -1000, C = -9·C0
    EXPECT_EQ(ErrorNumberOf([&] { CalcCapDCVoltage(part, 125, Quantity::Capacitance, CodeView::Eia); }), 6);
}

TEST(CapacitanceFault, IsNotRaisedByTheLargestSingleButByItsLimit)
{
    constexpr float largest = std::numeric_limits<float>::max();
    auto part = LinearPart();
    part.Data[Value::RatedVoltage] = 1;
    part.Data[Value::BiasV] = largest;
    const auto curve = CalcCapDCVoltage(part, 25, Quantity::CapacitanceChange, CodeView::Eia);
    EXPECT_EQ(curve.YData.back(), largest);
    EXPECT_EQ(curve.Limits.YMax, largest);
    part = LinearPart();
    part.Data[Value::NominalCapacitance] = largest;
    // The axis would end at 4·10^38.
    EXPECT_EQ(ErrorNumberOf([&] { CalcCapDCVoltage(part, 25, Quantity::Capacitance, CodeView::Eia); }), 6);
}

TEST(CapacitanceFault, IsNotRaisedByCoefficientsOutOfReach)
{
    auto part = LinearPart();
    part.Data[Value::PeakAmplitude] = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(ErrorNumberOf([&] { FirstChange(part, 25, CodeView::Jis); }), 0);
}

TEST(CapacitancePoint, IsWhatIsToldOfEachQuantity)
{
    const auto part = LinearPart();
    for (const CodeView view : {CodeView::Eia, CodeView::Jis})
    {
        const auto point = CapacitancePointAt(part, 1, 60, view);
        ASSERT_TRUE(point);
        EXPECT_EQ(point->PicoFarads, CapacitanceAt(part, 1, 60, Quantity::Capacitance, view));
        EXPECT_EQ(point->Change, CapacitanceAt(part, 1, 60, Quantity::CapacitanceChange, view));
    }
    auto unlisted = part;
    unlisted.Tcc = {"C0G", "CG"};
    EXPECT_FALSE(CapacitancePointAt(unlisted, 1, 60, CodeView::Eia));
}
} // namespace

#include "partdata/RunTimeError.h"
#include "tests/calc/ChartNumbers.h"
#include "tests/calc/NamedRow.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <iterator>
#include <vector>

namespace
{

struct Row
{
    const char* Name;
    std::int16_t ChartType;
    std::string_view Caption;
    std::string_view CommandName;
    std::vector<std::string_view> XAxes;
    std::vector<std::string_view> YAxes;
};

class AxesOfChartType : public testing::TestWithParam<Row>
{
};

/// The names of the quantities, in order.
template <class Quantities> std::vector<std::string_view> NamesOf(const Quantities& quantities)
{
    std::vector<std::string_view> names;
    std::ranges::transform(quantities, std::back_inserter(names), NameOf);
    return names;
}

TEST_P(AxesOfChartType, NameTheQuantitiesInOrder)
{
    const ChartKind& kind = ChartKindOf(GetParam().ChartType);
    EXPECT_EQ(kind.Caption, GetParam().Caption);
    EXPECT_EQ(kind.CommandName, GetParam().CommandName);
    EXPECT_EQ(NumberOf(kind), GetParam().ChartType);
    EXPECT_EQ(NamesOf(XAxesOf(kind)), GetParam().XAxes);
    EXPECT_EQ(NamesOf(kind.YAxes), GetParam().YAxes);
}

INSTANTIATE_TEST_SUITE_P(All, AxesOfChartType,
                         testing::Values(Row{"temperature rise over loads and frequency",
                                             0,
                                             "Temperature Rise Characteristics",
                                             "temperature-rise",
                                             {"Current", "Voltage", "Apparent Power", "Effective Power",
                                              "Frequency"},
                                             {"Temperature Rise"}},
                                         Row{"allowable loads over frequency",
                                             1,
                                             "Allowable power",
                                             "allowable-power",
                                             {"Frequency"},
                                             {"Current", "Voltage", "Apparent Power", "Effective Power"}},
                                         Row{"capacitance over temperature",
                                             2,
                                             "Capacitance-Temperature Characteristics",
                                             "capacitance-temperature",
                                             {"Temperature"},
                                             {"Capacitance", "Capacitance Change"}},
                                         Row{"capacitance over bias",
                                             3,
                                             "Capacitance-DC Voltage Characteristics",
                                             "capacitance-dc-voltage",
                                             {"DC Bias Voltage"},
                                             {"Capacitance", "Capacitance Change"}},
                                         Row{"loss resistance over frequency",
                                             4,
                                             "Loss Resistance",
                                             "loss-resistance",
                                             {"Frequency"},
                                             {"Loss Resistance"}}),
                         RowName<Row>);

TEST(ChartKinds, AreFiveByTheirNumbers)
{
    EXPECT_EQ(ChartKinds().size(), 5U);
    EXPECT_EQ(FindChartKind(-1), nullptr);
    EXPECT_EQ(FindChartKind(5), nullptr);
    EXPECT_THROW(ChartKindOf(5), RunTimeError);
    EXPECT_EQ(&KindOf(ChartId::CapacitanceDCVoltage), FindChartKind(3));
}

TEST(ChartKinds, HaveButtonsOnTheFormForTheFirstFour)
{
    EXPECT_EQ(FormChartKinds().size(), 4U);
    EXPECT_EQ(FormChartKinds().data(), ChartKinds().data());
    EXPECT_FALSE(KindOf(ChartId::LossResistance).IsOnForm);
}

TEST(Sweep, BelongsToTheAxisOfItsChartType)
{
    const auto& overLoad = SweepOf(0, "Apparent Power");
    const auto& overFrequency = SweepOf(0, "Frequency");
    EXPECT_EQ(&SweepOf(0, "Current"), &overLoad);
    EXPECT_EQ(overLoad.XKind, AxisKind::Linear);
    EXPECT_EQ(overFrequency.XKind, AxisKind::Logarithmic);
    EXPECT_EQ(overFrequency.YKind, AxisKind::Linear);
    EXPECT_EQ(SweepOf(1, "Frequency").YKind, AxisKind::Logarithmic);
    EXPECT_TRUE(overLoad.Uses(Condition::Frequency));
    EXPECT_FALSE(overLoad.Uses(Condition::Parameter));
    EXPECT_TRUE(overFrequency.Uses(Condition::Parameter));
    EXPECT_FALSE(overFrequency.Uses(Condition::Frequency));
    const auto& loss = SweepOf(4, "Frequency");
    EXPECT_EQ(loss.XKind, AxisKind::Logarithmic);
    EXPECT_EQ(loss.YKind, AxisKind::Logarithmic);
    EXPECT_TRUE(loss.Uses(Condition::AmbientTemperature));
    EXPECT_EQ(loss.Conditions.size(), 1U);
}

TEST(Sweep, DoesNotExistForAnAxisOfAnotherChartType)
{
    EXPECT_THROW(SweepOf(1, "Current"), RunTimeError);
    EXPECT_THROW(SweepOf(2, "Frequency"), RunTimeError);
    EXPECT_THROW(SweepOf(2, "frequency"), RunTimeError);
    EXPECT_THROW(SweepOf(-1, "Frequency"), RunTimeError);
}

TEST(Rule, OfAChartTypeThatDoesNotUseTheConditionIsTheUsualOne)
{
    EXPECT_EQ(RuleOf(KindOf(ChartId::AllowablePower), Condition::DCBias), &RefuseDCBiasAtRated);
    EXPECT_EQ(RuleOf(KindOf(ChartId::CapacitanceTemperature), Condition::DCBias), &RefuseDCBias);
    EXPECT_EQ(RuleOf(KindOf(ChartId::CapacitanceDCVoltage), Condition::DCBias), &RefuseDCBias);
    EXPECT_EQ(RuleOf(KindOf(ChartId::CapacitanceDCVoltage), Condition::AmbientTemperature),
              &RefuseClassAmbient);
    EXPECT_EQ(RuleOf(KindOf(ChartId::TemperatureRise), Condition::AmbientTemperature), &RefuseHeatingAmbient);
}

TEST(Parameters, NameEffectiveBeforeApparentPower)
{
    EXPECT_EQ(NamesOf(Parameters),
              (std::vector<std::string_view>{"Current", "Voltage", "Effective Power", "Apparent Power"}));
}

} // namespace

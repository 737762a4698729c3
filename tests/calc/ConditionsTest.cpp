#include "calc/Conditions.h"
#include "calc/ChartKinds.h"
#include "tests/calc/NamedRow.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>

namespace
{

constexpr EntryLocale Point{.CommaIsDecimal = false};
constexpr EntryLocale Comma{.CommaIsDecimal = true};

const Refusal Valid;

const std::string BiasTo16 = "DC Bias Voltage is invalid!\r\nPlease enter a Number from 0 to 16[V]";
const std::string BiasUnder16 = "DC Bias Voltage is invalid!\r\nPlease enter a Number from 0 under 16[V]";
const std::string BiasTo6_3 = "DC Bias Voltage is invalid!\r\nPlease enter a Number from 0 to 6.3[V]";
const std::string Frequency = "Frequency is invalid!\r\nPlease enter a Number from 10 to 1000 [kHz]";
const std::string Heat = "Heat Resistance is invalid!\r\nPlease enter a Number from 0 [C/W]";
const std::string Ambient20To125 =
    "Ambient Temperature is invalid!\r\nPlease enter a Number from 20 to 125 [C]";
const std::string NotANumber = "A Non-numerical value exists where numerical value should be in.";

std::string AmbientRange(const char* range)
{
    return "Ambient Temperature is invalid!\r\nPlease enter a Number from " + std::string(range) + " [C]";
}

PartRecord Part(float ratedVolts, float upperTemp = 125, std::string_view tcc = "X7R")
{
    PartRecord part;
    part.Tcc = {tcc, "?"};
    part.Data[Value::RatedVoltage] = ratedVolts;
    part.Data[Value::UpperTemperature] = upperTemp;
    return part;
}

// ---- Entries against limits ----

using Judge = std::function<Refusal(const char*)>;

struct Row
{
    const char* Name;
    Judge Refuse;
    const char* Entry;
    Refusal Expected;
};

Judge Bias(int chartType, float ratedVolts = 16, EntryLocale locale = Point)
{
    return [=](const char* entry)
    {
        const auto refuse = RuleOf(ChartKindOf(chartType), Condition::DCBias);
        return refuse(entry, Part(ratedVolts), CodeView::Eia, locale);
    };
}

Judge FrequencyRule(EntryLocale locale = Point)
{
    return [=](const char* entry) { return RefuseFrequency(entry, {}, CodeView::Eia, locale); };
}

Judge HeatRule()
{
    return [](const char* entry) { return RefuseHeatResistance(entry, {}, CodeView::Eia, Point); };
}

Judge Ambient1(float upper)
{
    return [=](const char* entry)
    { return RefuseHeatingAmbient(entry, Part(16, upper), CodeView::Eia, Point); };
}

Judge Ambient2(const char* tcc, CodeView view)
{
    return [=](const char* entry) { return RefuseClassAmbient(entry, Part(16, 125, tcc), view, Point); };
}

Judge Parameter()
{
    return [](const char* entry) { return RefuseNoNumber(entry, {}, CodeView::Eia, Point); };
}

class Entry : public testing::TestWithParam<Row>
{
};

TEST_P(Entry, IsJudged)
{
    EXPECT_EQ(GetParam().Refuse(GetParam().Entry), GetParam().Expected);
}

INSTANTIATE_TEST_SUITE_P(
    DCBias, Entry,
    testing::Values(Row{"zero is allowed", Bias(0), "0", Valid},
                    Row{"below zero is refused", Bias(0), "-0.001", BiasTo16},
                    Row{"rated voltage for temperature rise", Bias(0), "16", Valid},
                    Row{"rated voltage for capacitance", Bias(2), "16", Valid},
                    Row{"rated voltage for allowable power", Bias(1), "16", BiasUnder16},
                    Row{"just below it for allowable power", Bias(1), "15.9999", Valid},
                    Row{"zero for allowable power", Bias(1), "0", Valid},
                    Row{"negative for allowable power", Bias(1), "-1", BiasUnder16},
                    Row{"just above rated voltage", Bias(0), "16.0001", BiasTo16},
                    Row{"single precision decides", Bias(0), "16.0000001", Valid},
                    Row{"broken rated voltage", Bias(3, 6.3F), "6.3", Valid},
                    Row{"above a broken one", Bias(3, 6.3F), "6.31", BiasTo6_3},
                    Row{"empty", Bias(0), "", BiasTo16},
                    Row{"empty for allowable power", Bias(1), "", BiasUnder16},
                    Row{"only blanks", Bias(0), "  ", BiasTo16}, Row{"letters", Bias(0), "abc", BiasTo16},
                    Row{"number and unit", Bias(0), "5V", BiasTo16},
                    Row{"blanks around", Bias(0), " 5 ", Valid}, Row{"exponent", Bias(0), "1.5E1", Valid},
                    Row{"too large for a single", Bias(0), "1e99", BiasTo16},
                    Row{"infinity is no number", Bias(0), "inf", BiasTo16},
                    Row{"no number is no number", Bias(0), "nan", BiasTo16},
                    Row{"group separator", Bias(0, 2000), "1,000",
                        "DC Bias Voltage is invalid!\r\n"
                        "Please enter a Number from 0 to 2000[V]"},
                    Row{"comma where it is the decimal sign", Bias(0, 16, Comma), "1,5", Valid},
                    Row{"point where comma is the decimal sign", Bias(0, 16, Comma), "1.5", Valid}),
    RowName<Row>);

INSTANTIATE_TEST_SUITE_P(Frequency, Entry,
                         testing::Values(Row{"lowest", FrequencyRule(), "10", Valid},
                                         Row{"highest", FrequencyRule(), "1000", Valid},
                                         Row{"below", FrequencyRule(), "9.99", Frequency},
                                         Row{"above", FrequencyRule(), "1000.01", Frequency},
                                         Row{"empty", FrequencyRule(), "", Frequency},
                                         Row{"letters", FrequencyRule(), "100k", Frequency},
                                         Row{"hexadecimal", FrequencyRule(), "0x64", Frequency},
                                         Row{"negative", FrequencyRule(), "-100", Frequency},
                                         Row{"too large for a single", FrequencyRule(), "1e40", Frequency},
                                         Row{"decimal comma", FrequencyRule(Comma), "99,5", Valid},
                                         Row{"comma where the point is the decimal sign", FrequencyRule(),
                                             "99,5", Frequency}),
                         RowName<Row>);

INSTANTIATE_TEST_SUITE_P(HeatResistance, Entry,
                         testing::Values(Row{"zero is refused", HeatRule(), "0", Heat},
                                         Row{"negative zero is refused", HeatRule(), "-0", Heat},
                                         Row{"just above zero", HeatRule(), "1e-30", Valid},
                                         Row{"too small for a single", HeatRule(), "1e-60", Heat},
                                         Row{"too large for a single", HeatRule(), "1e60", Heat},
                                         Row{"the largest single", HeatRule(), "3.4028235e38", Valid},
                                         Row{"negative", HeatRule(), "-1", Heat},
                                         Row{"ordinary", HeatRule(), "46.5", Valid},
                                         Row{"empty", HeatRule(), "", Heat}),
                         RowName<Row>);

INSTANTIATE_TEST_SUITE_P(AmbientOfPower, Entry,
                         testing::Values(Row{"lowest", Ambient1(125), "20", Valid},
                                         Row{"below", Ambient1(125), "19.99", Ambient20To125},
                                         Row{"upper temperature of the part", Ambient1(125), "125", Valid},
                                         Row{"above it", Ambient1(125), "125.01", Ambient20To125},
                                         Row{"another part", Ambient1(85), "85.5", AmbientRange("20 to 85")},
                                         Row{"empty", Ambient1(125), "", Ambient20To125},
                                         Row{"letters", Ambient1(125), "warm", Ambient20To125}),
                         RowName<Row>);

INSTANTIATE_TEST_SUITE_P(
    Parameter, Entry,
    testing::Values(Row{"empty", Parameter(), "", NotANumber}, Row{"letters", Parameter(), "x", NotANumber},
                    Row{"negative is a number", Parameter(), "-3", Valid},
                    Row{"zero is a number", Parameter(), "0", Valid},
                    Row{"too large for a single is a number", Parameter(), "1e99", Valid},
                    Row{"two decimal signs", Parameter(), "1.2.3", NotANumber}),
    RowName<Row>);

// ---- Ambient temperature of the capacitance charts ----

struct RangeRow
{
    const char* Name;
    const char* Tcc;
    CodeView View;
    int Lower;
    int Upper;
};

class AmbientOfCapacitance : public testing::TestWithParam<RangeRow>
{
};

TEST_P(AmbientOfCapacitance, KeepsTheRangeOfTheCharacteristic)
{
    const auto& row = GetParam();
    const auto refuse = Ambient2(row.Tcc, row.View);
    const Refusal message =
        AmbientRange((std::to_string(row.Lower) + " to " + std::to_string(row.Upper)).c_str());

    EXPECT_EQ(refuse(std::to_string(row.Lower).c_str()), Valid);
    EXPECT_EQ(refuse(std::to_string(row.Upper).c_str()), Valid);
    EXPECT_EQ(refuse((std::to_string(row.Lower) + ".01").c_str()), message);
    EXPECT_EQ(refuse((std::to_string(row.Upper) + ".01").c_str()), message);
    EXPECT_EQ(refuse(""), message);
    EXPECT_EQ(refuse("x"), message);
    EXPECT_EQ(refuse(row.View == CodeView::Eia ? "25" : "20"), Valid);
}

INSTANTIATE_TEST_SUITE_P(All, AmbientOfCapacitance,
                         testing::Values(RangeRow{"X7R in EIA code", "X7R", CodeView::Eia, -55, 125},
                                         RangeRow{"X7R in JIS code", "X7R", CodeView::Jis, -55, 125},
                                         RangeRow{"X5R in EIA code", "X5R", CodeView::Eia, -55, 85},
                                         RangeRow{"X5R in JIS code", "X5R", CodeView::Jis, -25, 85},
                                         RangeRow{"Y5V in EIA code", "Y5V", CodeView::Eia, -30, 85},
                                         RangeRow{"Y5V in JIS code", "Y5V", CodeView::Jis, -25, 85},
                                         RangeRow{"another in EIA code", "C0G", CodeView::Eia, -55, 125},
                                         RangeRow{"another in JIS code", "C0G", CodeView::Jis, -55, 125}),
                         RowName<RangeRow>);

TEST(AmbientOfCapacitance, OfY5VAtMinus30DependsOnTheCode)
{
    EXPECT_EQ(Ambient2("Y5V", CodeView::Eia)("-30"), Valid);
    EXPECT_EQ(Ambient2("Y5V", CodeView::Jis)("-30"), Refusal(AmbientRange("-25 to 85")));
}

TEST(Conditions, AreKnownByTheirOwnRows)
{
    for (const ConditionKind& kind : ConditionKinds())
    {
        EXPECT_EQ(&KindOf(kind.Id), &kind);
    }
    EXPECT_EQ(KindOf(Condition::AmbientTemperature).Name, "Ambient Temperature");
    EXPECT_EQ(KindOf(Condition::Frequency).Value, &ChartRecord::Frequency);
}

TEST(FirstEntry, IsThePartsOwnHeatResistanceAndTheViewsReference)
{
    auto part = Part(16);
    part.Data[31] = 46.93F;
    EXPECT_EQ(FirstEntry(Condition::HeatResistance, part, CodeView::Eia), "46.93");
    EXPECT_EQ(FirstEntry(Condition::AmbientTemperature, part, CodeView::Eia), "25");
    EXPECT_EQ(FirstEntry(Condition::AmbientTemperature, part, CodeView::Jis), "20");
    EXPECT_EQ(FirstEntry(Condition::DCBias, part, CodeView::Jis), "");
    EXPECT_EQ(FirstEntry(Condition::Parameter, part, CodeView::Jis), "");
}

// ---- Numbers that need no words ----

/// Numbers around every limit of the rules.
constexpr std::array<float, 18> JudgedNumbers = {-56, -55, -30, -25,   -0.01F, 0,   0.01F, 10,      15.99F,
                                                 16,  17,  20,  84.9F, 85,     125, 126,   1000.1F, INFINITY};

TEST(PermittedNumbers, AreThoseWhoseEntriesAreNotRefused)
{
    for (const char* tcc : {"X7R", "X5R", "Y5V", "C0G"})
    {
        const auto part = Part(16, 85, tcc);
        for (const float number : JudgedNumbers)
        {
            const auto entry = std::isinf(number) ? "1E39" : std::to_string(number);
            const auto isRefused = [&](ConditionRule rule, CodeView view = CodeView::Eia)
            { return rule(entry, part, view, Point).has_value(); };
            EXPECT_NE(IsDCBiasPermitted(number, part), isRefused(RefuseDCBias)) << entry;
            EXPECT_NE(IsDCBiasBelowRated(number, part), isRefused(RefuseDCBiasAtRated)) << entry;
            EXPECT_NE(IsHeatResistancePermitted(number), isRefused(RefuseHeatResistance)) << entry;
            EXPECT_NE(IsHeatingAmbientPermitted(number, part), isRefused(RefuseHeatingAmbient)) << entry;
            EXPECT_NE(IsFrequencyPermitted(number), isRefused(RefuseFrequency)) << entry;
            for (const CodeView view : {CodeView::Eia, CodeView::Jis})
            {
                EXPECT_NE(IsClassAmbientPermitted(number, part, view), isRefused(RefuseClassAmbient, view))
                    << tcc << ' ' << entry;
            }
        }
    }
}

TEST(PermittedNumbers, EndWhereTheRulesSay)
{
    const auto part = Part(16, 85, "X5R");
    EXPECT_TRUE(IsDCBiasPermitted(16, part));
    EXPECT_FALSE(IsDCBiasBelowRated(16, part));
    EXPECT_FALSE(IsHeatResistancePermitted(0));
    EXPECT_FALSE(IsHeatingAmbientPermitted(19.9F, part));
    EXPECT_TRUE(IsClassAmbientPermitted(-55, part, CodeView::Eia));
    EXPECT_FALSE(IsClassAmbientPermitted(-55, part, CodeView::Jis));
    EXPECT_TRUE(IsFrequencyPermitted(1000));
}
} // namespace

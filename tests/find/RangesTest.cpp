/// What is told of a part over ranges of conditions: the worst, and where it occurs.

#include "find/QuestionRules.h"
#include "tests/find/FindParts.h"

#include <gtest/gtest.h>

namespace
{
using enum FoundColumn;
using Reason = LeftOutReason;

/// `PlainPart` whose current heating grows by a hundredth of its 4 °C/A² a degree above 20 °C.
PartRecord WarmingPart()
{
    PartRecord part = PlainPart();
    part.Data[Value::CurrentT] = 0.04F;
    return part;
}

OperatingPoint Over(ConditionRange bias, ConditionRange ambient, ConditionRange kilohertz = 100.0F)
{
    return {.BiasVolts = bias, .AmbientC = ambient, .Kilohertz = kilohertz};
}

void ExpectValue(const FoundParts& found, FoundColumn column, double expected)
{
    const auto value = ::ValueOf(found, column);
    ASSERT_TRUE(value) << KindOf(column).Key;
    EXPECT_NEAR(*value, expected, 1e-6 * std::abs(expected)) << KindOf(column).Key;
}

using Conditions = std::array<float, 2>;

Conditions PlaceOf(const FoundParts& found, FoundPlace place)
{
    return found.Parts.at(0).ConditionsAt(place).value_or(Conditions{-1, -1});
}

TEST(Ranges, TellTheLeastAndTheMostCapacitance)
{
    const auto found = Find({PlainPart()}, Over({2, 8}, {20, 60}));
    ExpectValue(found, EffectiveCapacitance, 920);
    ExpectValue(found, Left, 92);
    ExpectValue(found, MostCapacitance, 980);
    EXPECT_EQ(PlaceOf(found, FoundPlace::Least), (Conditions{8, 20}));
    EXPECT_EQ(PlaceOf(found, FoundPlace::Most), (Conditions{2, 20}));
}

TEST(Ranges, CountTheToleranceOnWhatIsLeftToo)
{
    auto at = Over({2, 8}, 25);
    at.Tolerance = {20, 80};
    const auto found = Find({PlainPart()}, at);
    ExpectValue(found, EffectiveCapacitance, 0.8 * 920);
    ExpectValue(found, Left, 0.8 * 92);
    ExpectValue(found, MostCapacitance, 1.8 * 980);
}

TEST(Ranges, TellTheWorstOfACurrent)
{
    // 4 °C/A² at 20 °C and 7.2 at 100; 20 °C of rise are permitted up to 105 °C.
    const auto found = Find({WarmingPart()}, With(Over(5, {20, 115}), Quantity::Current, 1));
    ExpectValue(found, PermittedRise, 10);
    ExpectValue(found, Rise, 4 + 0.04 * 95);
    ExpectValue(found, Body, 115 + 4 + 0.04 * 95);
    ExpectValue(found, Margin, 10 - (4 + 0.04 * 95));
    ExpectValue(found, Current, std::sqrt(10 / 7.8));
    ExpectValue(found, LossResistance, 1000 * 7.8 / 50);
    EXPECT_EQ(PlaceOf(found, FoundPlace::Rise), (Conditions{115, 100}));
    EXPECT_EQ(PlaceOf(found, FoundPlace::Margin), (Conditions{115, 100}));
}

TEST(Ranges, HaveTheLeastMarginElsewhereThanTheLargestRise)
{
    auto part = WarmingPart();
    part.Data[Value::CurrentT] = -0.02F;
    const auto found = Find({part}, With(Over(5, {20, 115}), Quantity::Current, 1));
    EXPECT_EQ(PlaceOf(found, FoundPlace::Rise), (Conditions{20, 100}));
    EXPECT_EQ(PlaceOf(found, FoundPlace::Margin), (Conditions{115, 100}));
    ExpectValue(found, Margin, 10 - (4 - 0.02 * 95));
}

TEST(Ranges, TellTheWorstOfAVoltage)
{
    // kV = log10 f / 4, which is 1.25 at 100 kHz and 1.5 at 1 MHz.
    const auto found = Find({PlainPart()}, With(Over({0, 5}, 25, {100, 1000}), Quantity::RmsVoltage, 1));
    ExpectValue(found, Rise, 1.5);
    ExpectValue(found, Voltage, std::pow(20 / 1.5, 0.4));
    EXPECT_EQ(PlaceOf(found, FoundPlace::Rise), (Conditions{25, 1000}));
}

TEST(Ranges, BoundVoltagesByTheHighestBias)
{
    ExpectValue(Find({PlainPart()}, Over({0, 9}, 25)), Voltage, 0.707);
}

TEST(Ranges, TellNoPowers)
{
    const auto found = Find({PlainPart()}, Over({0, 5}, 25));
    EXPECT_EQ(::ValueOf(found, ApparentPower), std::nullopt);
    EXPECT_EQ(::ValueOf(found, EffectivePower), std::nullopt);
}

TEST(Ranges, TellTheRippleAtTheLowestFrequency)
{
    const auto found = Find({PlainPart()}, With(Over({0, 5}, 25, {100, 200}), Quantity::Current, 1));
    ExpectValue(found, Ripple, 1 / (2 * 3.14159265358979 * 1e5 * 950e-12));
}

TEST(Ranges, TakeAsManyPartsAsTheWorstNeeds)
{
    const Wants wanted{.LeastCapacitance = 1850.0F, .Parallel = Bank{.IsFewest = true}};
    // Two have 1840 pF at 8 V, 1960 pF at 2 V.
    ExpectValue(Find({PlainPart()}, Over({2, 8}, 25), wanted), Count, 3);
    ExpectValue(Find({PlainPart()}, Over(2, 25), wanted), Count, 2);
}

TEST(Ranges, WantWhatIsWantedEverywhere)
{
    const Wants wanted{.LeastCapacitance = 950.0F};
    EXPECT_EQ(Find({PlainPart()}, Over({0, 5}, 25), wanted).Parts.size(), 1U);
    EXPECT_EQ(Find({PlainPart()}, Over({0, 5.1F}, 25), wanted).Parts.size(), 0U);
}

TEST(Ranges, LeaveOutByEitherEnd)
{
    const auto reasonOf = [](const OperatingPoint& at)
    {
        const auto leftOut = Find({PlainPart()}, at, {.LeastCapacitance = 1.0F}).LeftOut;
        return leftOut[Reason::BiasTooHigh] > 0             ? "bias"
               : leftOut[Reason::TemperatureOutOfRange] > 0 ? "temperature"
                                                            : "";
    };
    EXPECT_STREQ(reasonOf(Over({0, 10}, {-55, 125})), "");
    EXPECT_STREQ(reasonOf(Over({0, 10.1F}, 25)), "bias");
    EXPECT_STREQ(reasonOf(Over(5, {-56, 25})), "temperature");
    EXPECT_STREQ(reasonOf(Over(5, {25, 126})), "temperature");
}

TEST(Ranges, LeaveOutWhereNoRiseIsPermittedSomewhere)
{
    const auto found = Find({PlainPart()}, With(Over(5, {20, 125}), Quantity::Current, 0.1F));
    EXPECT_EQ(found.LeftOut[Reason::NoPermittedRise], 1U);
}

TEST(Ranges, JudgeHeatingFromWhereItsDataBegin)
{
    const auto at = With(Over(5, {-20, 60}), Quantity::Current, 1);
    EXPECT_EQ(NoteOnHeating(at), "rise and loads judged from 20 C up, where the heating data begins");
    const auto found = Find({WarmingPart()}, at);
    ExpectValue(found, Rise, 4 + 0.04 * 40);
    EXPECT_EQ(PlaceOf(found, FoundPlace::Least)[1], -20);
}

TEST(Ranges, HaveNoHeatingBelowItsData)
{
    EXPECT_EQ(NoteOnHeating(Over(5, -20)), "");
    EXPECT_EQ(NoteOnHeating(Over(5, {-20, 19})), "");
    EXPECT_EQ(::ValueOf(Find({PlainPart()}, Over(5, {-20, 19})), Current), std::nullopt);
    EXPECT_EQ(NoteOnHeating(Over(5, {20, 60})), "");
}

TEST(Ranges, CannotBeCalculatedWhereTheHeatingMayEnd)
{
    auto part = WarmingPart();
    part.Data[Value::CurrentT] = -0.1F;
    const auto found = Find({part}, With(Over(5, {20, 80}), Quantity::Current, 1));
    EXPECT_EQ(found.LeftOut[Reason::CannotBeCalculated], 1U);
}

TEST(Ranges, TellAPointWithItsPlace)
{
    const auto found = Find({PlainPart()}, With(At(5), Quantity::Current, 1));
    ExpectValue(found, MostCapacitance, 950);
    ExpectValue(found, Margin, 16);
    EXPECT_EQ(PlaceOf(found, FoundPlace::Least), (Conditions{5, 25}));
    EXPECT_EQ(PlaceOf(found, FoundPlace::Margin), (Conditions{25, 100}));
}

TEST(Ranges, OfNoWidthArePoints)
{
    for (const Quantity kind : {Quantity::Current, Quantity::RmsVoltage})
    {
        const auto point = With(At(5), kind, 0.5F);
        auto range = point;
        // One end a touch away: the code of ranges, at what is a point but for that.
        range.BiasVolts.Low = std::nextafter(5.0F, 0.0F);
        const auto narrow = Find({WarmingPart()}, range);
        const auto exact = Find({WarmingPart()}, point);
        for (const FoundColumn column : {EffectiveCapacitance, Rise, Body, Margin, Current, LossResistance})
        {
            ExpectValue(narrow, column, ::ValueOf(exact, column).value());
        }
    }
}

TEST(Ranges, AreJudgedByBothEnds)
{
    const auto keyOf = [](const OperatingPoint& at)
    {
        const auto refused = RefuseQuestion({.At = at}, 50);
        return refused ? std::string(refused->Key) : "";
    };
    EXPECT_EQ(keyOf(Over({0, 900}, {-300, 900}, {10, 1000})), "");
    EXPECT_EQ(keyOf(Over({-1, 5}, 25)), "dcBias");
    EXPECT_EQ(keyOf(Over(5, 25, {9, 100})), "frequency");
    EXPECT_EQ(keyOf(Over(5, 25, {100, 1001})), "frequency");
    auto at = Over(5, 25);
    at.Tolerance = {99, 999};
    EXPECT_EQ(keyOf(at), "");
    at.Tolerance = {99.1F, 0};
    EXPECT_EQ(keyOf(at), "tolerance");
    at.Tolerance = {0, -1};
    EXPECT_EQ(keyOf(at), "tolerance");
}
} // namespace

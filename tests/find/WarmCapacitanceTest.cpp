#include "tests/find/FindParts.h"

#include <gtest/gtest.h>

namespace
{
/// Half a percent of the capacitance goes with each degree above 25 °C.
PartRecord CoolingPart()
{
    auto part = PlainPart();
    part.Data[Value::TemperatureX] = -0.5F;
    return part;
}

FindQuestion Question(float amperes)
{
    FindQuestion question;
    question.At = At(0);
    question.At.Load = AcLoad{.Kind = Quantity::Current, .Value = amperes};
    return question;
}

std::vector<FoundPart> Found(const PartRecord& part, const FindQuestion& question)
{
    const PartRecord* const candidate = &part;
    return FindParts({&candidate, 1}, question).Parts;
}

/// 1.5 A bring the part to 9 °C above 25 °C.
TEST(WarmCapacitance, IsThatOfThePartsOwnTemperature)
{
    const auto part = CoolingPart();
    const auto found = Found(part, Question(1.5F));
    ASSERT_EQ(found.size(), 1U);
    EXPECT_NEAR(found[0].Known(FoundColumn::WarmCapacitance), 1000 * (1 - 0.045), 1e-2);
    EXPECT_NEAR(found[0].Known(FoundColumn::EffectiveCapacitance), 1000, 1e-6);
}

TEST(WarmCapacitance, IsEmptyWithoutALoad)
{
    const auto part = CoolingPart();
    FindQuestion question;
    question.At = At(0);
    EXPECT_FALSE(Found(part, question)[0].ValueOf(FoundColumn::WarmCapacitance));
}

/// 36 °C/W of 95 °C would make 131 °C, above the 125 °C of the characteristic.
TEST(WarmCapacitance, IsEmptyAboveTheTemperaturesOfTheCharacteristic)
{
    const auto part = CoolingPart();
    auto question = Question(3);
    question.At.AmbientC = 95.0F;
    question.Wanted.MostRise = 80;
    const auto found = Found(part, question);
    for (const auto& row : found)
    {
        EXPECT_FALSE(row.ValueOf(FoundColumn::WarmCapacitance));
    }
    question.At.Load->Value = 1.5F;
    EXPECT_TRUE(Found(part, question)[0].ValueOf(FoundColumn::WarmCapacitance));
}

TEST(WarmCapacitance, CanBeWanted)
{
    const auto part = CoolingPart();
    auto question = Question(1.5F);
    question.Wanted.LeastWarmCapacitance = 955;
    EXPECT_EQ(Found(part, question).size(), 1U);
    question.Wanted.LeastWarmCapacitance = 956;
    EXPECT_TRUE(Found(part, question).empty());
}

/// Two parts share the current, rise by 2.25 °C and keep 988.75 pF each; one alone keeps 955 pF.
TEST(WarmCapacitance, TakesAsManyPartsAsItNeeds)
{
    const auto part = CoolingPart();
    auto question = Question(1.5F);
    question.Wanted.LeastWarmCapacitance = 1977;
    question.Wanted.Parallel = Bank{.IsFewest = true};
    const auto found = Found(part, question);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].Known(FoundColumn::Count), 2);
    EXPECT_NEAR(found[0].Known(FoundColumn::WarmCapacitance), 988.75, 1e-2);
    question.Wanted.LeastWarmCapacitance = 1978;
    EXPECT_EQ(Found(part, question)[0].Known(FoundColumn::Count), 3);
}

/// From 25 to 60 °C and 9 °C of rise: the least is that of 69 °C.
TEST(WarmCapacitance, IsTheLeastOverRanges)
{
    const auto part = CoolingPart();
    auto question = Question(1.5F);
    question.At.AmbientC = {25, 60};
    const auto found = Found(part, question);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_NEAR(found[0].Known(FoundColumn::WarmCapacitance), 1000 * (1 - 0.22), 1e-2);
}

/// Colder ambients than the part itself count for nothing: from 25 °C and 9 °C of rise the most that is lost
/// is that of 34 °C, where the capacitance rises with the temperature.
TEST(WarmCapacitance, IsOfThePartsOwnTemperaturesAlone)
{
    auto part = CoolingPart();
    part.Data[Value::TemperatureX] = 0.5F;
    auto question = Question(1.5F);
    question.At.AmbientC = {25, 60};
    EXPECT_NEAR(Found(part, question)[0].Known(FoundColumn::WarmCapacitance), 1000 * (1 + 0.045), 1e-2);
}

/// Below 20 °C nothing is known of heating: a part may be as cold as what is around it.
TEST(WarmCapacitance, CountsTheColdWhereHeatingIsNotKnown)
{
    auto part = CoolingPart();
    part.Data[Value::TemperatureX] = 0.5F;
    auto question = Question(1.5F);
    question.At.AmbientC = {-15, 60};
    EXPECT_NEAR(Found(part, question)[0].Known(FoundColumn::WarmCapacitance), 1000 * (1 - 0.2), 1e-2);
}

TEST(WarmCapacitance, TakesTheLeastHeatOfTheFrequencies)
{
    auto part = CoolingPart();
    part.Data[Value::TemperatureX] = 0.5F;
    part.Data[Value::CurrentPerF] = 4e5F;
    auto question = Question(1.5F);
    question.At.Kilohertz = {100, 400};
    // kI = 4 + 4E5/f: 8 at 100 kHz, 5 at 400 kHz, which leaves the part at 25 + 11.25 °C.
    EXPECT_NEAR(Found(part, question)[0].Known(FoundColumn::WarmCapacitance), 1000 * (1 + 0.05625), 1e-2);
}
} // namespace

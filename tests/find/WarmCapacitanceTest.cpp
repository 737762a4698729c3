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
} // namespace

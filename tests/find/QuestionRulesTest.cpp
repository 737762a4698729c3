#include "find/QuestionRules.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
constexpr float LargestRating = 50;

std::string KeyOf(const FindQuestion& question)
{
    const auto refusal = RefuseQuestion(question, LargestRating);
    return refusal ? std::string(refusal->Key) : "";
}

std::string MessageOf(const FindQuestion& question)
{
    const auto refusal = RefuseQuestion(question, LargestRating);
    return refusal ? refusal->Message : "";
}

AcLoad Amperes(float value)
{
    return {.Kind = Quantity::Current, .Value = value};
}

TEST(QuestionRules, LetPassWhatSomePartMayPermit)
{
    EXPECT_EQ(KeyOf({}), "");
    EXPECT_EQ(KeyOf({.At = {.BiasVolts = 1e6F, .AmbientC = 900}}), "");
    EXPECT_EQ(KeyOf({.At = {.Kilohertz = 10.0F, .HeatResistance = 1e-3F, .Load = Amperes(0)}}), "");
    EXPECT_EQ(KeyOf({.At = {.Kilohertz = 1000.0F},
                     .Wanted = {.LeastCapacitance = 0.0F, .LeastLeft = 0.0F, .MostRise = 80.0F}}),
              "");
}

TEST(QuestionRules, TellTheEntryThatNoPartPermits)
{
    EXPECT_EQ(KeyOf({.At = {.BiasVolts = -0.1F}}), "dcBias");
    EXPECT_EQ(KeyOf({.At = {.HeatResistance = 0.0F}}), "heatResistance");
    EXPECT_EQ(KeyOf({.At = {.HeatResistance = INFINITY}}), "heatResistance");
    EXPECT_EQ(KeyOf({.At = {.Kilohertz = 9.99F}}), "frequency");
    EXPECT_EQ(KeyOf({.At = {.Kilohertz = 1000.1F}}), "frequency");
    EXPECT_EQ(KeyOf({.At = {.Kilohertz = 100.0F, .Load = Amperes(-1)}}), "parameterValue");
    EXPECT_EQ(KeyOf({.At = {.Kilohertz = 100.0F, .Load = Amperes(INFINITY)}}), "parameterValue");
    EXPECT_EQ(KeyOf({.Wanted = {.LeastCapacitance = -1.0F}}), "minCapacitance");
    EXPECT_EQ(KeyOf({.Wanted = {.LeastLeft = -1.0F}}), "minLeft");
    EXPECT_EQ(KeyOf({.At = {.Kilohertz = 100.0F}, .Wanted = {.MostLossResistance = -1.0F}}),
              "maxLossResistance");
    EXPECT_EQ(KeyOf({.Wanted = {.MostRise = 0.0F}}), "maxRise");
    EXPECT_EQ(KeyOf({.Wanted = {.MostRise = 80.01F}}), "maxRise");
}

TEST(QuestionRules, AskForTheFrequencyThatLoadsAndLossesNeed)
{
    for (const FindQuestion& question :
         {FindQuestion{.At = {.Load = Amperes(1)}}, FindQuestion{.Wanted = {.MostLossResistance = 1.0F}}})
    {
        const auto refusal = RefuseQuestion(question, LargestRating);
        ASSERT_TRUE(refusal);
        EXPECT_EQ(refusal->Key, "frequency");
        EXPECT_TRUE(refusal->IsMissing);
    }
    EXPECT_FALSE(RefuseQuestion({.At = {.Kilohertz = 5.0F}}, LargestRating)->IsMissing);
}

TEST(QuestionRules, SpeakAsTheFormDoes)
{
    EXPECT_EQ(MessageOf({.At = {.BiasVolts = -1}}),
              "DC Bias Voltage is invalid!\r\nPlease enter a Number from 0 to 50[V]");
    EXPECT_EQ(MessageOf({.At = {.Kilohertz = 1.0F}}),
              "Frequency is invalid!\r\nPlease enter a Number from 10 to 1000 [kHz]");
    EXPECT_EQ(MessageOf({.At = {.Kilohertz = 100.0F, .Load = Amperes(-1)}}),
              "Parameter is invalid!\r\nPlease enter a Number from 0 [Arms]");
    EXPECT_EQ(MessageOf({.Wanted = {.MostRise = 81.0F}}),
              "Temperature Rise is invalid!\r\nPlease enter a Number above 0, up to 80 [C]");
}
} // namespace

/// Lines of a chart with conditions of their own.

#include "requests/LineOption.h"

#include "requests/RequestWords.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{
TEST(LineOption, OverridesCommonConditions)
{
    const CurveRequest common{.Part = {},
                              .Chart = "temperature-rise",
                              .Conditions = {{Condition::DCBias, "5V"},
                                             {Condition::Frequency, "100"},
                                             {Condition::AmbientTemperature, "40"}}};
    const auto request = RequestOfLine("  ABC  dc-bias=12V heat-resistance=50 effective-power=0.1W", common);
    EXPECT_EQ(request.Part, "ABC");
    EXPECT_EQ(request.Chart, "temperature-rise");
    EXPECT_EQ(request.Conditions[Condition::DCBias], "12V");
    EXPECT_EQ(request.Conditions[Condition::Frequency], "100");
    EXPECT_EQ(request.Conditions[Condition::HeatResistance], "50");
    EXPECT_EQ(request.Conditions[Condition::AmbientTemperature], "40");
    EXPECT_EQ(request.Parameter, "effective-power");
    EXPECT_EQ(request.Conditions[Condition::Parameter], "0.1W");
}

std::string RefusalOf(const std::string& line)
{
    try
    {
        RequestOfLine(line, {});
    }
    catch (const RequestError& error)
    {
        EXPECT_TRUE(IsMistaken(error.Kind()));
        return WordsOf(error);
    }
    return "no error";
}

TEST(LineOption, RefusesWhatIsNoCondition)
{
    EXPECT_EQ(RefusalOf(" "), "--line is empty");
    EXPECT_EQ(RefusalOf("ABC bias=5"),
              "--line \"ABC bias=5\": \"bias\" is none of: dc-bias, frequency, heat-resistance, ambient, "
              "current, voltage, effective-power, apparent-power");
    EXPECT_THAT(RefusalOf("ABC ambeint=5"), testing::EndsWith("; did you mean \"ambient\"?"));
    EXPECT_EQ(RefusalOf("ABC 5V"), "--line \"ABC 5V\": \"5V\" is not NAME=VALUE");
}
} // namespace

/// Lines and ranges of a chart that is asked for on a command line.

#include "requests/ChartLines.h"

#include <gtest/gtest.h>

namespace
{
const PartTable& Parts()
{
    static const PartTable parts = LoadPartData(SAMPLE_RANGE);
    return parts;
}

constexpr const char* medium = "KTS31NB51E106MA01";

CurveRequest AtBias(const std::string& volts)
{
    return {.Part = medium, .Chart = "capacitance-temperature", .DCBias = volts};
}

/// The message of a failure.
template <class Step> std::string FailureOf(Step step)
{
    try
    {
        step();
    }
    catch (const CommandError& error)
    {
        return error.what();
    }
    return "no failure";
}

TEST(ChartLine, OverridesCommonConditions)
{
    const CurveRequest common{
        .Part = {}, .Chart = "temperature-rise", .DCBias = "5V", .Frequency = "100", .Ambient = "40"};
    const auto request = RequestOfLine("  ABC  dc-bias=12V heat-resistance=50 effective-power=0.1W", common);
    EXPECT_EQ(request.Part, "ABC");
    EXPECT_EQ(request.Chart, "temperature-rise");
    EXPECT_EQ(request.DCBias, "12V");
    EXPECT_EQ(request.Frequency, "100");
    EXPECT_EQ(request.HeatResistance, "50");
    EXPECT_EQ(request.Ambient, "40");
    EXPECT_EQ(request.Parameter, "effective-power");
    EXPECT_EQ(request.ParameterValue, "0.1W");
}

TEST(ChartLine, RefusesWhatIsNoCondition)
{
    EXPECT_THROW(RequestOfLine("", {}), UsageError);
    EXPECT_THROW(RequestOfLine("ABC bias=5", {}), UsageError);
    EXPECT_THROW(RequestOfLine("ABC 5V", {}), UsageError);
}

TEST(ChartLines, AreAtMostSixDifferentOnes)
{
    std::vector<CurveRequest> requests;
    for (const char* bias : {"0", "1", "2", "3", "4", "5"})
    {
        requests.push_back(AtBias(bias));
    }
    EXPECT_EQ(CurvesOf(requests, Parts(), {}).size(), 6U);
    requests.push_back(AtBias("6"));
    EXPECT_EQ(FailureOf([&] { CurvesOf(requests, Parts(), {}); }),
              std::string(medium) + ": Maximum Numbers of this Chart Type open!");
    requests.back() = AtBias("3V");
    EXPECT_EQ(FailureOf([&] { CurvesOf(requests, Parts(), {}); }),
              std::string(medium) + ": This Chart is already opened!");
}

std::vector<ChartRecord> OneLine()
{
    return {CurvesOf({AtBias("5")}, Parts(), {}).front().Line};
}

TEST(ChartRange, IsTheDefaultOfTheLinesWhereNothingIsTyped)
{
    const auto lines = OneLine();
    const auto view = ViewOf(lines, {});
    EXPECT_FALSE(view.Rescaled);
    EXPECT_EQ(view.Range.XMax, lines.front().XMax);
    EXPECT_EQ(view.Range.YMin, lines.front().YMin);
}

TEST(ChartRange, KeepsTheEndsThatAreNotTyped)
{
    const auto lines = OneLine();
    const auto view = ViewOf(lines, {.XFrom = "0C", .YTo = "11uF"});
    EXPECT_TRUE(view.Rescaled);
    EXPECT_EQ(view.Range.XMin, 0);
    EXPECT_EQ(view.Range.XMax, lines.front().XMax);
    EXPECT_EQ(view.Range.YMin, lines.front().YMin);
    EXPECT_EQ(view.Range.YMax, 1.1e7F);
}

TEST(ChartRange, IsJudgedAsTheDialogDoes)
{
    // An X5R part's default is -75 to 100: one span of 175 further on either side.
    const auto lines = OneLine();
    const std::string refusal = "Set X Range of Temperature from -250 to 275 [C]";
    EXPECT_EQ(FailureOf([&] { ViewOf(lines, {.XFrom = "-250", .XTo = "275"}); }), "no failure");
    EXPECT_EQ(FailureOf([&] { ViewOf(lines, {.XFrom = "-250.1"}); }), refusal);
    EXPECT_EQ(FailureOf([&] { ViewOf(lines, {.XTo = "275.1"}); }), refusal);
    EXPECT_EQ(FailureOf([&] { ViewOf(lines, {.XFrom = "20", .XTo = "20"}); }), refusal);
    EXPECT_THROW(ViewOf(lines, {.XFrom = "20V"}), UsageError);
    EXPECT_THROW(ViewOf(lines, {.XFrom = "warm"}), UsageError);
}

TEST(ChartRange, TakesFrequenciesInKilohertz)
{
    const CurveRequest request{.Part = medium, .Chart = "allowable-power", .DCBias = "5"};
    const std::vector<ChartRecord> lines = {CurvesOf({request}, Parts(), {}).front().Line};
    const auto view = ViewOf(lines, {.XFrom = "100", .XTo = "0.5MHz"});
    EXPECT_EQ(view.Range.XMin, 1e5F);
    EXPECT_EQ(view.Range.XMax, 5e5F);
    EXPECT_EQ(FailureOf([&] { ViewOf(lines, {.XFrom = "9"}); }),
              "Set X Range of Frequency from 10 to 1000 [kHz]");
}
} // namespace

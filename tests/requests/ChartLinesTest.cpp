/// Lines and ranges of a chart that is asked for.

#include "requests/ChartLines.h"
#include "files/PartLoading.h"

#include "requests/RequestError.h"

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
    return {.Part = medium, .Chart = "capacitance-temperature", .Conditions = {{Condition::DCBias, volts}}};
}

/// What a step is refused with.
template <class Step> std::string RefusalOf(Step step)
{
    try
    {
        step();
    }
    catch (const RequestError& error)
    {
        return error.Key() + ": " + error.Message();
    }
    return "not refused";
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
    EXPECT_EQ(RefusalOf([&] { CurvesOf(requests, Parts(), {}); }), "part: a chart has at most 6 lines");
    requests.resize(3);
    requests.back() = AtBias("1V");
    EXPECT_EQ(RefusalOf([&] { CurvesOf(requests, Parts(), {}); }), "part: is line 2 already");
}

/// The line that is told of an error; 0 for none.
std::size_t LineOfError(const std::vector<CurveRequest>& requests)
{
    try
    {
        CurvesOf(requests, Parts(), {});
    }
    catch (const RequestError& error)
    {
        return error.Line();
    }
    return 0;
}

TEST(ChartLines, TellWhichOfThemIsWrong)
{
    EXPECT_EQ(LineOfError({AtBias("1"), AtBias("2"), AtBias("1A")}), 3U);
    EXPECT_EQ(LineOfError({AtBias("1"), AtBias("1000")}), 2U);
    EXPECT_EQ(LineOfError({AtBias("1000")}), 0U);
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
    EXPECT_EQ(RefusalOf([&] { ViewOf(lines, {.XFrom = "-250", .XTo = "275"}); }), "not refused");
    EXPECT_EQ(RefusalOf([&] { ViewOf(lines, {.XFrom = "-250.1"}); }), "xFrom: " + refusal);
    EXPECT_EQ(RefusalOf([&] { ViewOf(lines, {.XTo = "275.1"}); }), "xTo: " + refusal);
    EXPECT_EQ(RefusalOf([&] { ViewOf(lines, {.XFrom = "20", .XTo = "20"}); }), "xFrom: is not below 20");
    // Its capacitance stands between 7 and 9 µF.
    EXPECT_EQ(RefusalOf([&] { ViewOf(lines, {.YTo = "11.1uF"}); }),
              "yTo: Set Y Range of Capacitance from 5000000 to 11000000 [pF]");
}

TEST(ChartRange, TellsTheEndThatIsNoValue)
{
    const auto lines = OneLine();
    EXPECT_EQ(RefusalOf([&] { ViewOf(lines, {.XFrom = "20V"}); }),
              "xFrom: \"20V\": \"V\" is not the unit of a temperature");
    EXPECT_EQ(RefusalOf([&] { ViewOf(lines, {.XTo = "warm"}); }), "xTo: \"warm\" is not a number");
    EXPECT_EQ(RefusalOf([&] { ViewOf(lines, {.YFrom = "20V"}); }),
              "yFrom: \"20V\": \"V\" is not the unit of a capacitance");
    EXPECT_EQ(RefusalOf([&] { ViewOf(lines, {.YTo = "much"}); }), "yTo: \"much\" is not a number");
}

TEST(ChartRange, TakesFrequenciesInKilohertz)
{
    const CurveRequest request{
        .Part = medium, .Chart = "allowable-power", .Conditions = {{Condition::DCBias, "5"}}};
    const std::vector<ChartRecord> lines = {CurvesOf({request}, Parts(), {}).front().Line};
    const auto view = ViewOf(lines, {.XFrom = "100", .XTo = "0.5MHz"});
    EXPECT_EQ(view.Range.XMin, 1e5F);
    EXPECT_EQ(view.Range.XMax, 5e5F);
    EXPECT_EQ(RefusalOf([&] { ViewOf(lines, {.XFrom = "9"}); }),
              "xFrom: Set X Range of Frequency from 10 to 1000 [kHz]");
}
} // namespace

#include "chart/layout/ReadOut.h"

#include "chart/layout/ChartDrawing.h"

#include <gtest/gtest.h>

#include <cmath>

static std::string X(const ChartView& view, double position)
{
    return XReadOut(view, position);
}

static std::string Y(const ChartView& view, double position)
{
    return YReadOut(view, position);
}

static const ChartView capacitance = {.Chart = {2, "Temperature", "Capacitance"},
                                      .Range = {.XMax = 125, .YMax = 1000, .XMin = -55, .YMin = 0}};
static const ChartView allowedCurrent = {.Chart = {1, "Frequency", "Current"},
                                         .Range = {.XMax = 1E6F, .YMax = 10, .XMin = 1E4F, .YMin = 0.1F}};

TEST(ReadOut, OfLinearAxesIsProportional)
{
    // Half of -55..125, a quarter of 0..1000.
    EXPECT_EQ(X(capacitance, 50), "Temperature 35[°C]");
    EXPECT_EQ(Y(capacitance, 25), "Capacitance 250[pF]");
}

TEST(ReadOut, ShowsUpToThreeDecimals)
{
    // 180 / 100 * 0.01 = 0.018; a third of 1000; -55 + 180 * 0.3056 = 0.008.
    EXPECT_EQ(X(capacitance, 0.01), "Temperature -54.982[°C]");
    EXPECT_EQ(Y(capacitance, 100 / 3.0), "Capacitance 333.333[pF]");
    EXPECT_EQ(X(capacitance, 30.56), "Temperature 0.008[°C]");
}

TEST(ReadOut, OfTheBordersIsTheRangeItself)
{
    EXPECT_EQ(X(capacitance, 0), "Temperature -55[°C]");
    EXPECT_EQ(X(capacitance, 100), "Temperature 125[°C]");
    EXPECT_EQ(Y(allowedCurrent, 0), "Current 0.1[Arms]");
    EXPECT_EQ(Y(allowedCurrent, 100), "Current 10[Arms]");
    EXPECT_EQ(X(allowedCurrent, 0), "Frequency 10[kHz]");
    EXPECT_EQ(X(allowedCurrent, 100), "Frequency 1000[kHz]");
}

TEST(ReadOut, OfLogarithmicAxesGoesByPowersOfTen)
{
    // Half way between 10^4 and 10^6 lies 10^5 Hz; a quarter of the way 10^4.5 = 31622.8 Hz.
    EXPECT_EQ(X(allowedCurrent, 50), "Frequency 100[kHz]");
    EXPECT_EQ(X(allowedCurrent, 25), "Frequency 31.623[kHz]");
    EXPECT_EQ(Y(allowedCurrent, 50), "Current 1[Arms]");
    EXPECT_EQ(Y(allowedCurrent, 75), "Current 3.162[Arms]");
}

TEST(ReadOut, OfRiseOverFrequencyIsLogarithmicAlongXOnly)
{
    const ChartView rise = {.Chart = {0, "Frequency", "Temperature Rise"},
                            .Range = {.XMax = 1E6F, .YMax = 80, .XMin = 1E4F, .YMin = 0}};
    EXPECT_EQ(X(rise, 50), "Frequency 100[kHz]");
    EXPECT_EQ(Y(rise, 25), "Temperature Rise 20[°C]");
}

TEST(ReadOut, FollowsTheUsersRange)
{
    auto narrow = allowedCurrent;
    narrow.Range = {.XMax = 2E5F, .YMax = 4, .XMin = 5E4F, .YMin = 1};
    narrow.Rescaled = true;
    // The geometric means of 50 and 200, and of 1 and 4.
    EXPECT_EQ(X(narrow, 50), "Frequency 100[kHz]");
    EXPECT_EQ(Y(narrow, 50), "Current 2[Arms]");
}

/// A line whose Y is twice its X, with X from 0 to `end`.
static ChartRecord DoubleLine(const ChartView& view, float end)
{
    ChartRecord line;
    line.ChartType = view.Chart.ChartType;
    line.XAxisName = view.Chart.XAxisName;
    line.YAxisName = view.Chart.YAxisName;
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        line.XData[i] = end * static_cast<float>(i) / 199;
        line.YData[i] = 2 * line.XData[i];
    }
    PlaceCurves(view, {&line, 1});
    return line;
}

static const ChartView rise = {.Chart = {0, "Current", "Temperature Rise"},
                               .Range = {.XMax = 10, .YMax = 20, .XMin = 0, .YMin = 0}};

static std::string Of(const ChartView& view, const ChartRecord& line, double position)
{
    return LineReadOut(view, line, position);
}

TEST(LineReadOut, IsTheLinesOwnYAtThePointer)
{
    const auto line = DoubleLine(rise, 10);
    EXPECT_EQ(Of(rise, line, 0), "0[°C]");
    EXPECT_EQ(Of(rise, line, 25), "5[°C]");
    EXPECT_EQ(Of(rise, line, 62.345), "12.469[°C]");
    EXPECT_EQ(Of(rise, line, 100), "20[°C]");
}

TEST(LineReadOut, OfALineShorterThanTheAxisEndsWithIt)
{
    const auto line = DoubleLine(rise, 5);
    EXPECT_EQ(Of(rise, line, 25), "5[°C]");
    EXPECT_EQ(Of(rise, line, 50), "10[°C]");
    EXPECT_EQ(Of(rise, line, 50.1), "-");
    EXPECT_EQ(Of(rise, line, 100), "-");
}

TEST(LineReadOut, LeavesOutWhatLiesBeforeTheLine)
{
    auto view = rise;
    view.Range.XMin = -10;
    const auto line = DoubleLine(view, 10);
    EXPECT_EQ(Of(view, line, 49.9), "-");
    EXPECT_EQ(Of(view, line, 50), "0[°C]");
    EXPECT_EQ(Of(view, line, 75), "10[°C]");
}

TEST(LineReadOut, TellsYBeyondTheUsersRangeToo)
{
    auto view = rise;
    view.Range = {.XMax = 8, .YMax = 6, .XMin = 2, .YMin = 3};
    const auto line = DoubleLine(view, 10);
    // X 2, 5 and 8.
    EXPECT_EQ(Of(view, line, 0), "4[°C]");
    EXPECT_EQ(Of(view, line, 50), "10[°C]");
    EXPECT_EQ(Of(view, line, 100), "16[°C]");
}

TEST(LineReadOut, BetweenPointsOfALogarithmicChartFollowsTheDrawnLine)
{
    ChartRecord line;
    line.ChartType = 1;
    line.XAxisName = "Frequency";
    line.YAxisName = "Current";
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        line.XData[i] = static_cast<float>(std::pow(10.0, 4 + 2.0 * static_cast<double>(i) / 199));
        line.YData[i] = line.XData[i] / 1E5F;
    }
    PlaceCurves(allowedCurrent, {&line, 1});
    // On double logarithmic axes the line Y = X / 10^5 is straight: 10^4.5 Hz gives 10^-0.5 A.
    EXPECT_EQ(Of(allowedCurrent, line, 0), "0.1[Arms]");
    EXPECT_EQ(Of(allowedCurrent, line, 25), "0.316[Arms]");
    EXPECT_EQ(Of(allowedCurrent, line, 50), "1[Arms]");
    EXPECT_EQ(Of(allowedCurrent, line, 100), "10[Arms]");
}

TEST(LineReadOut, OfALineWithoutPlaceIsADash)
{
    auto zeros = DoubleLine(rise, 0);
    zeros.ChartType = 1;
    zeros.XAxisName = "Frequency";
    zeros.YAxisName = "Current";
    PlaceCurves(allowedCurrent, {&zeros, 1});
    EXPECT_EQ(Of(allowedCurrent, zeros, 50), "-");

    auto flat = rise;
    flat.Range = {};
    EXPECT_EQ(Of(flat, DoubleLine(flat, 0), 50), "-");
}

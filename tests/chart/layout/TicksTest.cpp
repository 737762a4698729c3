#include "chart/layout/LinearAxis.h"
#include "chart/layout/LogAxis.h"
#include "chart/layout/Mapping.h"

#include <gmock/gmock.h>

#include <cmath>

using testing::ElementsAre;

struct XLabelRow
{
    const char* Name;
    float Value;
    const char* Text;
    bool Exponent;
};

class XLabels : public testing::TestWithParam<XLabelRow>
{
};

TEST_P(XLabels, AreExponentialFromFiveCharacters)
{
    const auto& row = GetParam();
    const auto label = LabelOfXTick(row.Value, 100);
    EXPECT_EQ(label.Text, row.Text);
    EXPECT_EQ(label.Exponent, row.Exponent);
}

INSTANTIATE_TEST_SUITE_P(Values, XLabels,
                         testing::Values(XLabelRow{"Zero", 0, "0", false},
                                         XLabelRow{"Thousand", 1000, "1000", false},
                                         XLabelRow{"TenThousand", 10000, "1.00E+4", true},
                                         XLabelRow{"AnEighth", 0.125F, "1.25E-1", true},
                                         XLabelRow{"MinusTwelveAndAHalf", -12.5F, "-1.25E+1", true},
                                         XLabelRow{"FourCharacters", 0.25F, "0.25", false},
                                         XLabelRow{"MinusSeventyFive", -75, "-75", false},
                                         XLabelRow{"AccumulatedError", 2.4000001F, "2.4", false},
                                         XLabelRow{"RoundingErrorOfZero", 7e-6F, "0", false}),
                         [](const auto& info) { return std::string(info.param.Name); });

TEST(LinearTicks, SplitTheRangeEvenly)
{
    const auto ticks = LinearTicks(-75, 125, 8);
    ASSERT_EQ(ticks.size(), 9U);
    EXPECT_EQ(ticks[0].At, 0);
    EXPECT_EQ(ticks[0].Value, -75.0F);
    EXPECT_EQ(ticks[3].At, 37.5);
    EXPECT_EQ(ticks[3].Value, 0.0F);
    EXPECT_EQ(ticks[8].At, 100);
    EXPECT_EQ(ticks[8].Value, 125.0F);
}

TEST(LinearTicks, AccumulateInSinglePrecision)
{
    // 0.1 is no binary fraction: seven single steps add up to 0.70000005, not to the single 0.7.
    const auto ticks = LinearTicks(0, 1, 10);
    float sum = 0;
    for (int i = 0; i < 7; ++i)
    {
        sum += 0.1F;
    }
    EXPECT_NE(sum, 0.7F);
    EXPECT_EQ(ticks[7].Value, sum);
}

TEST(LinearTicks, AreNoneWithoutDivisionsOrWidth)
{
    EXPECT_TRUE(LinearTicks(0, 10, 0).empty());
    EXPECT_TRUE(LinearTicks(5, 5, 5).empty());
}

static std::vector<std::string> YLabels(float minimum, float maximum, int divisions)
{
    std::vector<std::string> labels;
    for (const auto& text : LabelsOfYTicks(LinearTicks(minimum, maximum, divisions), maximum - minimum))
    {
        labels.push_back(text);
    }
    return labels;
}

TEST(YLabels, ArePlainWhileShort)
{
    EXPECT_THAT(YLabels(0, 12, 5), ElementsAre("0", "2.4", "4.8", "7.2", "9.6", "12"));
    EXPECT_THAT(YLabels(-10, 10, 4), ElementsAre("-10", "-5", "0", "5", "10"));
    EXPECT_THAT(YLabels(0, 500000, 5), ElementsAre("0", "100000", "200000", "300000", "400000", "500000"));
    EXPECT_THAT(YLabels(0, 0.1F, 2), ElementsAre("0", "0.05", "0.1"));
}

TEST(YLabels, AreExponentialWhenLongOrSmall)
{
    EXPECT_THAT(YLabels(0, 1.2e7F, 5),
                ElementsAre("0", "2.40E+6", "4.80E+6", "7.20E+6", "9.60E+6", "1.20E+7"));
    EXPECT_THAT(YLabels(0, 0.05F, 2), ElementsAre("0", "2.50E-2", "5.00E-2"));
}

TEST(YLabels, StayPlainWhereTwoDecimalsWouldRound)
{
    EXPECT_THAT(YLabels(9990000, 1e7F, 5),
                ElementsAre("9990000", "9992000", "9994000", "9996000", "9998000", "1.00E+7"));
}

static std::vector<std::string> LogLabels(float minimum, float maximum)
{
    std::vector<std::string> labels;
    for (const auto& label : LogarithmicTicks(minimum, maximum).Labels)
    {
        labels.push_back(LabelOfLogTick(label.Value));
    }
    return labels;
}

TEST(LogTicks, StandAtMultiplesOfDecades)
{
    const auto ticks = LogarithmicTicks(1e4F, 1e6F);
    ASSERT_EQ(ticks.Lines.size(), 18U);
    for (std::size_t n = 0; n < ticks.Lines.size(); ++n)
    {
        const auto i = static_cast<double>(n / 9);
        const auto j = static_cast<double>(n % 9 + 2);
        EXPECT_NEAR(ticks.Lines[n].At, (i + std::log10(j)) * 50, 1e-9);
        EXPECT_EQ(ticks.Lines[n].Decade, j == 10);
    }
    EXPECT_NEAR(ticks.Lines[0].At, 15.0515, 1e-4);
    ASSERT_EQ(ticks.Labels.size(), 3U);
    EXPECT_EQ(ticks.Labels[0].At, 0);
    EXPECT_NEAR(ticks.Labels[1].At, 50, 1e-9);
    EXPECT_NEAR(ticks.Labels[2].At, 100, 1e-9);
}

TEST(LogTicks, StandAtTrueValuesOfAnyRange)
{
    // 20 to 500 spans log10 25; 100 lies in its middle, 30 at log10 1.5 / log10 25.
    const auto ticks = LogarithmicTicks(20, 500);
    ASSERT_EQ(ticks.Lines.size(), 13U);
    EXPECT_NEAR(ticks.Lines[0].At, 0, 1e-6);
    EXPECT_NEAR(ticks.Lines[1].At, 12.5965, 1e-4);
    EXPECT_NEAR(ticks.Lines[8].At, 50, 1e-6);
    EXPECT_TRUE(ticks.Lines[8].Decade);
    EXPECT_NEAR(ticks.Lines[9].At, 71.5338, 1e-4);
    EXPECT_NEAR(ticks.Lines[12].At, 100, 1e-6);
}

TEST(LogTicks, CountEveryDecadeOfSinglesOnce)
{
    // Singles such as 0.01 and 1000 have logarithms a hair beside the whole number.
    for (const float minimum : {1e-5F, 1e-4F, 0.001F, 0.01F, 0.1F, 1.0F, 10.0F, 100.0F, 1000.0F, 1e4F, 1e5F})
    {
        const auto ticks = LogarithmicTicks(minimum, minimum * 1000);
        EXPECT_EQ(ticks.Lines.size(), 27U) << minimum;
        EXPECT_EQ(ticks.Labels.size(), 4U) << minimum;
    }
}

TEST(LogLabels, StandAtDecades)
{
    EXPECT_THAT(LogLabels(0.001F, 10), ElementsAre("0.001", "0.01", "0.1", "1", "10"));
    EXPECT_THAT(LogLabels(1e5F, 1e7F), ElementsAre("100000", "1.00E+6", "1.00E+7"));
    EXPECT_THAT(LogLabels(1e-5F, 0.001F), ElementsAre("1.00E-5", "1.00E-4", "0.001"));
    EXPECT_THAT(LogLabels(15, 3000), ElementsAre("100", "1000"));
}

TEST(LogLabels, StandAtTheEndsOfAShortRangeToo)
{
    EXPECT_THAT(LogLabels(20, 500), ElementsAre("20", "100", "500"));
    EXPECT_THAT(LogLabels(20, 50), ElementsAre("20", "50"));
    EXPECT_THAT(LogLabels(10, 50), ElementsAre("10", "50"));
    EXPECT_THAT(LogLabels(20, 100), ElementsAre("20", "100"));
}

TEST(LogTicks, AreNoneWithoutExtent)
{
    for (const auto& [minimum, maximum] : {std::pair{1.0F, 1.0F}, {0.0F, 10.0F}, {-1.0F, 10.0F}})
    {
        const auto ticks = LogarithmicTicks(minimum, maximum);
        EXPECT_TRUE(ticks.Lines.empty());
        EXPECT_TRUE(ticks.Labels.empty());
    }
}

TEST(Mapping, IsLinearOrLogarithmic)
{
    const AxisMapping linear(AxisKind::Linear, -80, 20);
    EXPECT_DOUBLE_EQ(linear.Position(-80), 0);
    EXPECT_DOUBLE_EQ(linear.Position(-30), 50);
    EXPECT_DOUBLE_EQ(linear.Position(30), 110);
    const AxisMapping logarithmic(AxisKind::Logarithmic, 1e4F, 1e6F);
    EXPECT_NEAR(logarithmic.Position(1e5), 50, 1e-9);
    EXPECT_NEAR(logarithmic.Position(1e3), -50, 1e-9);
    EXPECT_NEAR(logarithmic.Position(2e4), 15.0515, 1e-4);
}

TEST(Mapping, ContainsItsBounds)
{
    const AxisMapping axis(AxisKind::Linear, -80, 20);
    EXPECT_TRUE(axis.Contains(-80));
    EXPECT_TRUE(axis.Contains(20));
    EXPECT_FALSE(axis.Contains(std::nextafter(20.0F, 21.0F)));
    EXPECT_FALSE(axis.Contains(std::nextafter(-80.0F, -81.0F)));
    EXPECT_FALSE(axis.Contains(std::nanf("")));
}

TEST(Mapping, PutsWhatHasNoLogarithmOutsideAtZero)
{
    const AxisMapping axis(AxisKind::Logarithmic, 0.1F, 10);
    for (const float value : {0.0F, -3.0F})
    {
        EXPECT_FALSE(axis.Contains(value));
        EXPECT_EQ(axis.Position(value), 0);
    }
}

TEST(Mapping, OfNoWidthContainsNothing)
{
    const AxisMapping axis(AxisKind::Linear, 3, 3);
    EXPECT_FALSE(axis.Contains(3));
    EXPECT_EQ(axis.Position(3), 0);
    EXPECT_EQ(axis.Position(8), 0);
}

TEST(AxisKinds, FollowTypeAndXAxis)
{
    EXPECT_EQ(XAxisKind({1, "Frequency", "Current"}), AxisKind::Logarithmic);
    EXPECT_EQ(YAxisKind({1, "Frequency", "Current"}), AxisKind::Logarithmic);
    EXPECT_EQ(XAxisKind({0, "Frequency", "Temperature Rise"}), AxisKind::Logarithmic);
    EXPECT_EQ(YAxisKind({0, "Frequency", "Temperature Rise"}), AxisKind::Linear);
    EXPECT_EQ(XAxisKind({0, "Current", "Temperature Rise"}), AxisKind::Linear);
    EXPECT_EQ(XAxisKind({2, "Temperature", "Capacitance"}), AxisKind::Linear);
    EXPECT_EQ(YAxisKind({3, "DC Bias Voltage", "Capacitance"}), AxisKind::Linear);
}

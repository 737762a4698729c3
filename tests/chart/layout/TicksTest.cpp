#include "calc/NumberText.h"
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

static std::vector<std::string> YLabels(float minimum, float maximum, int divisions = 5)
{
    return LabelsOfYTicks(LinearTicks(minimum, maximum, divisions), minimum, maximum);
}

TEST(YLabels, AreWholeWhereAllAreWhole)
{
    EXPECT_THAT(YLabels(-10, 10, 4), ElementsAre("-10", "-5", "0", "5", "10"));
    EXPECT_THAT(YLabels(0, 500000), ElementsAre("0", "100000", "200000", "300000", "400000", "500000"));
    EXPECT_THAT(YLabels(0, 999995), ElementsAre("0", "199999", "399998", "599997", "799996", "999995"));
}

TEST(YLabels, AreFractionsWhereOneIs)
{
    EXPECT_THAT(YLabels(0, 12), ElementsAre("0", "2.4", "4.8", "7.2", "9.6", "12"));
    EXPECT_THAT(YLabels(0, 0.1F, 2), ElementsAre("0", "0.05", "0.1"));
    EXPECT_THAT(YLabels(0, 40000.5F, 2), ElementsAre("0", "20000.3", "40000.5"));
    EXPECT_THAT(YLabels(-0.001F, 0.2F, 2), ElementsAre("-0.001", "0.0995", "0.2"));
}

TEST(YLabels, AreAllExponentialWhenOneIsLargeOrAllAreSmall)
{
    EXPECT_THAT(YLabels(0, 1.2e7F), ElementsAre("0", "2.40E+6", "4.80E+6", "7.20E+6", "9.60E+6", "1.20E+7"));
    EXPECT_THAT(YLabels(0, 1e6F), ElementsAre("0", "2.00E+5", "4.00E+5", "6.00E+5", "8.00E+5", "1.00E+6"));
    EXPECT_THAT(YLabels(-1e6F, 0, 2), ElementsAre("-1.00E+6", "-5.00E+5", "0"));
    EXPECT_THAT(YLabels(10000, 1.2e7F, 2), ElementsAre("1.00E+4", "6.01E+6", "1.20E+7"));
    EXPECT_THAT(YLabels(0, 0.05F, 2), ElementsAre("0", "2.50E-2", "5.00E-2"));
    EXPECT_THAT(YLabels(-0.05F, 0.05F, 2), ElementsAre("-5.00E-2", "0", "5.00E-2"));
}

TEST(YLabels, TakeMoreDigitsWhereNeighboursWouldReadAlike)
{
    EXPECT_THAT(YLabels(9990000, 1e7F),
                ElementsAre("9.990E+6", "9.992E+6", "9.994E+6", "9.996E+6", "9.998E+6", "1.000E+7"));
    EXPECT_THAT(YLabels(0.010001F, 0.010006F),
                ElementsAre("1.0001E-2", "1.0002E-2", "1.0003E-2", "1.0004E-2", "1.0005E-2", "1.0006E-2"));
    EXPECT_THAT(YLabels(0.123451F, 0.123456F),
                ElementsAre("0.123451", "0.123452", "0.123453", "0.123454", "0.123455", "0.123456"));
}

TEST(YLabels, ReadAsTheTypedEndAtTheLast)
{
    EXPECT_THAT(YLabels(0, 1234000, 2), ElementsAre("0", "6.170E+5", "1.234E+6"));
    EXPECT_THAT(YLabels(0, 1234567, 2), ElementsAre("0", "6.17284E+5", "1.23457E+6"));
    EXPECT_THAT(YLabels(0, 0.0123456F, 2), ElementsAre("0", "6.17280E-3", "1.23456E-2"));
    // Five steps of a fifth of the range add up to another number in single precision.
    EXPECT_EQ(YLabels(-1e5F, 0.7F).back(), "0.7");
}

TEST(YLabels, ReadAsTheTypedEndOfAnyRange)
{
    // A fifth of all decades, and ends of one to five digits.
    for (float power = 1e-4F; power < 1e8F; power *= 10)
    {
        for (const float digits : {1.0F, 1.2F, 1.23F, 1.234F, 1.2345F, 9.9999F})
        {
            const float end = digits * power;
            const auto labels = YLabels(0, end);
            ASSERT_EQ(labels.size(), 6U);
            EXPECT_NEAR(ToldBy(labels.back()), end, 1e-6 * end);
            for (std::size_t i = 1; i < labels.size(); ++i)
            {
                EXPECT_NE(labels[i], labels[i - 1]);
                EXPECT_EQ(labels[i].find('E') == std::string::npos, labels[1].find('E') == std::string::npos)
                    << labels[i];
            }
        }
    }
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

TEST(LogLabels, StandAtTheEndsOfARangeBelowTwoDecadesToo)
{
    EXPECT_THAT(LogLabels(20, 500), ElementsAre("20", "100", "500"));
    EXPECT_THAT(LogLabels(20, 50), ElementsAre("20", "50"));
    EXPECT_THAT(LogLabels(10, 50), ElementsAre("10", "50"));
    EXPECT_THAT(LogLabels(20, 100), ElementsAre("20", "100"));
    EXPECT_THAT(LogLabels(60, 3000), ElementsAre("60", "100", "1000", "3000"));
    // Two decades, as near as singles go.
    EXPECT_THAT(LogLabels(20, 2000), ElementsAre("100", "1000"));
    EXPECT_THAT(LogLabels(0.07F, 7), ElementsAre("0.1", "1"));
}

TEST(LogLabels, TellSixDigitsOfARangesEnds)
{
    EXPECT_THAT(LogLabels(0.123456F, 0.5F), ElementsAre("0.123456", "0.5"));
    EXPECT_THAT(LogLabels(1.5e-4F, 1.2345e-3F), ElementsAre("1.50E-4", "0.001", "0.0012345"));
    EXPECT_THAT(LogLabels(1234567, 2.5e6F), ElementsAre("1.23457E+6", "2.50E+6"));
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

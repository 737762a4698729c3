#include "calc/ChartNames.h"
#include "partdata/RunTimeError.h"

#include <gtest/gtest.h>

namespace
{
TEST(ChartTypeNumber, IsTheIndexOfTheButton)
{
    EXPECT_EQ(GetChartTypeNumber("Temperature Rise Characteristics"), 0);
    EXPECT_EQ(GetChartTypeNumber("Allowable power"), 1);
    EXPECT_EQ(GetChartTypeNumber("Capacitance-Temperature Characteristics"), 2);
    EXPECT_EQ(GetChartTypeNumber("Capacitance-DC Voltage Characteristics"), 3);
}

TEST(ChartTypeNumber, IsZeroForAnyOtherText)
{
    EXPECT_EQ(GetChartTypeNumber(""), 0);
    EXPECT_EQ(GetChartTypeNumber("allowable power"), 0);
}

TEST(ChartCaption, NamesTypeAndAxesWithoutBlanks)
{
    EXPECT_EQ(ChartCaption({1, "Frequency", "Current"}), "Allowable power(Frequency,Current)");
    EXPECT_EQ(ChartCaption({0, "", ""}), "Temperature Rise Characteristics(,)");
}

TEST(ChartCaption, NamesItsChartAgain)
{
    for (std::int16_t type = 0; type < 5; ++type)
    {
        const ChartKey chart{type, "DC Bias Voltage", "Capacitance Change"};
        EXPECT_EQ(ChartOfCaption(ChartCaption(chart)), chart);
    }
}

TEST(ChartCaption, IsSplitAtTheFirstOfEachMark)
{
    EXPECT_EQ(ChartOfCaption("Allowable power(X,with,commas),and more)"), (ChartKey{1, "X", "with,commas"}));
    EXPECT_EQ(ChartOfCaption("Allowable power(X(1),Y)"), (ChartKey{1, "X(1)", "Y"}));
}

TEST(ChartCaption, WithoutMarksIsSplitAtItsEnd)
{
    EXPECT_EQ(ChartOfCaption(""), ChartKey{});
    EXPECT_EQ(ChartOfCaption("Allowable power"), (ChartKey{1, "", ""}));
    EXPECT_EQ(ChartOfCaption("Allowable power(X"), (ChartKey{1, "X", ""}));
}

TEST(ChartCaption, OfANumberWithoutChartTypeIsRefused)
{
    EXPECT_THROW(ChartCaption({5, "Frequency", "Current"}), RunTimeError);
}
} // namespace

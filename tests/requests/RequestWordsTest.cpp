/// Refused requests in the words of the command line.

#include "requests/RequestWords.h"

#include <gtest/gtest.h>

namespace
{
TEST(RequestWords, NameTheOptionOfAKey)
{
    EXPECT_EQ(OptionNameOf("dcBias"), "dc-bias");
    EXPECT_EQ(OptionNameOf("x"), "x");
    EXPECT_EQ(OptionNameOf("yFrom"), "y-from");
}

TEST(RequestWords, TellPartOptionAndEntryOfARefusedCondition)
{
    const auto refused =
        RequestError(RequestErrorKind::Condition, "heatResistance", "Heat Resistance is invalid!")
            .OfPart("ABC");
    EXPECT_EQ(WordsOf(refused.Of("-1")), "ABC: --heat-resistance -1: Heat Resistance is invalid!");
    EXPECT_EQ(WordsOf(refused), "ABC: --heat-resistance is not given: Heat Resistance is invalid!");
    EXPECT_FALSE(IsMistaken(refused.Kind()));
}

TEST(RequestWords, TellAParameterByItsOption)
{
    const RequestError error(RequestErrorKind::Unit, "parameterValue", "\"5V\": \"V\" is not the unit");
    EXPECT_EQ(WordsOf(error), "--parameter \"5V\": \"V\" is not the unit");
    EXPECT_TRUE(IsMistaken(error.Kind()));
}

TEST(RequestWords, LeaveOutThePartOfAWrongCommandLine)
{
    const RequestError error(RequestErrorKind::UnknownValue, "x", "X axis \"Time\" is none of: Frequency");
    EXPECT_EQ(WordsOf(error.OfPart("ABC")), "X axis \"Time\" is none of: Frequency");
    EXPECT_TRUE(IsMistaken(error.Kind()));
}

TEST(RequestWords, TellPartAndLineAmongSeveral)
{
    const RequestError error(RequestErrorKind::Unit, "dcBias", "\"5A\": \"A\" is not the unit of a voltage");
    EXPECT_EQ(WordsOf(error.OfPart("ABC").InLine(2)),
              "ABC (line 2): --dc-bias \"5A\": \"A\" is not the unit of a voltage");
    const RequestError refused(RequestErrorKind::Condition, "dcBias", "is invalid!");
    EXPECT_EQ(WordsOf(refused.Of("26").OfPart("ABC").InLine(6)), "ABC (line 6): --dc-bias 26: is invalid!");
}

TEST(RequestWords, TellThePartOfALineThatIsNotTaken)
{
    const RequestError error(RequestErrorKind::Line, "part", "This Chart is already opened!");
    EXPECT_EQ(WordsOf(error.OfPart("ABC")), "ABC: This Chart is already opened!");
    EXPECT_FALSE(IsMistaken(error.Kind()));
}
} // namespace

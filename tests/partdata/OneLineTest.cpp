#include "partdata/OneLine.h"
#include "partdata/RunTimeError.h"

#include <gtest/gtest.h>

TEST(OneLine, ShowsControlCharactersAndCutsLongTexts)
{
    EXPECT_EQ(OneLine("a\nb\x7F"), "a\\x0Ab\\x7F");
    EXPECT_EQ(OneLine(std::string(80, 'x')), std::string(80, 'x'));
    EXPECT_EQ(OneLine(std::string(81, 'x')), std::string(80, 'x') + "...");
    EXPECT_EQ(OneLine(std::string(79, 'x') + "°C"), std::string(79, 'x') + "°...");
}

TEST(OneLine, CutsNothingWhereOnlyControlCharactersAreInTheWay)
{
    EXPECT_EQ(WithoutControls(std::string(81, 'x') + "\r\n"), std::string(81, 'x') + "\\x0D\\x0A");
}

TEST(OneLine, IsWhatARunTimeErrorKeepsTo)
{
    const auto error = RunTimeError(RunTimeErrorNumber::FileNotFound).At("two\nlines.idx");
    EXPECT_STREQ(error.what(), "Run-time error '53': File not found: two\\x0Alines.idx");
    EXPECT_EQ(error.Place(), "two\nlines.idx");
}

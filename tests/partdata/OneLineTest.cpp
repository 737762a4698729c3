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

TEST(OneLine, ShowsTheControlCharactersBeyondAscii)
{
    // As UTF-8 has them, and as a byte of another code page.
    EXPECT_EQ(WithoutControls("a\xC2\x9B"
                              "2Jb"),
              "a\\x9B2Jb");
    EXPECT_EQ(WithoutControls("a\x9B"
                              "2Jb"),
              "a\\x9B2Jb");
    EXPECT_EQ(WithoutControls("\xE2\x9B"), "\xE2\\x9B") << "a character cut short";
    EXPECT_EQ(WithoutControls("µ \xC2\xA0 ‛ 🛈 \xE9"), "µ \xC2\xA0 ‛ 🛈 \xE9");
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

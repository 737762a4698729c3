#include "partdata/Windows1252.h"
#include "tests/calc/NamedRow.h"

namespace
{
struct TextRow
{
    const char* Name;
    std::string Utf8;
    std::string Ansi;
};

class TextsOfTheCodePage : public testing::TestWithParam<TextRow>
{
};

TEST_P(TextsOfTheCodePage, GoThereAndBack)
{
    EXPECT_EQ(Windows1252FromUtf8(GetParam().Utf8), GetParam().Ansi);
    EXPECT_EQ(Utf8FromWindows1252(GetParam().Ansi), GetParam().Utf8);
}

INSTANTIATE_TEST_SUITE_P(Rows, TextsOfTheCodePage,
                         testing::Values(TextRow{"nothing", "", ""},
                                         TextRow{"letters and controls", "X7R\t~\x7F", "X7R\t~\x7F"},
                                         TextRow{"degree sign", "\u00B0C", "\xB0\x43"},
                                         TextRow{"first and last of Latin-1", "\u00A0\u00FF", "\xA0\xFF"},
                                         TextRow{"euro and y with diaeresis", "\u20AC\u0178", "\x80\x9F"},
                                         TextRow{"per mille and dash", "\u2030\u2013", "\x89\x96"},
                                         TextRow{"open places stay", "\xC2\x81\xC2\x9D", "\x81\x9D"}),
                         RowName<TextRow>);

struct OutsideRow
{
    const char* Name;
    std::string Utf8;
    std::string Ansi;
};

class TextsOutsideTheCodePage : public testing::TestWithParam<OutsideRow>
{
};

TEST_P(TextsOutsideTheCodePage, BecomeQuestionMarks)
{
    EXPECT_EQ(Windows1252FromUtf8(GetParam().Utf8), GetParam().Ansi);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TextsOutsideTheCodePage,
    testing::Values(OutsideRow{"first above Latin-1", "a\u0100b", "a?b"},
                    OutsideRow{"three bytes", "a\u3042b", "a?b"},
                    OutsideRow{"four bytes", "a\U0001F600b", "a?b"},
                    OutsideRow{"first control that the code page replaces", "\xC2\x80", "?"},
                    OutsideRow{"last control that the code page replaces", "\xC2\x9F", "?"},
                    OutsideRow{"continuation without a lead",
                               "a\x80\xBF"
                               "b",
                               "a??b"},
                    OutsideRow{"overlong lead", "\xC0\xC1", "??"},
                    OutsideRow{"lead without its continuation",
                               "\xC3"
                               "ab",
                               "?ab"},
                    OutsideRow{"lead before another", "\xC3\xC3\xA4", "?\xE4"},
                    OutsideRow{"second continuation missing",
                               "\xE2\x82"
                               "ab",
                               "??ab"},
                    OutsideRow{"cut within a character", "a\xE2\x82", "a??"},
                    OutsideRow{"cut behind a lead of four", "\xF0", "?"},
                    OutsideRow{"letter in three bytes", "\xE0\x81\x81", "?"},
                    OutsideRow{"letter in four bytes", "\xF0\x80\x81\x81", "?"},
                    OutsideRow{"umlaut in three bytes", "\xE0\x83\xA4", "?"},
                    OutsideRow{"euro sign in four bytes", "\xF0\x82\x82\xAC", "?"}),
    RowName<OutsideRow>);
} // namespace

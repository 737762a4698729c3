#include "separatedtext/Encoding.h"

#include "tests/calc/NamedRow.h"

#include <gmock/gmock.h>

using namespace std::string_literals;

namespace
{
struct FileRow
{
    const char* Name;
    std::string Bytes;
    std::string Utf8;
};

class TextFiles : public testing::TestWithParam<FileRow>
{
};

TEST_P(TextFiles, AreReadInTheirEncoding)
{
    EXPECT_EQ(Utf8Of(GetParam().Bytes), GetParam().Utf8);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TextFiles,
    testing::Values(FileRow{"nothing", "", ""}, FileRow{"UTF-8", "25 \u00B0C \u3042", "25 \u00B0C \u3042"},
                    FileRow{"UTF-8 with a mark", "\xEF\xBB\xBF\u00B0", "\u00B0"},
                    FileRow{"mark alone", "\xEF\xBB\xBF", ""},
                    FileRow{"Windows-1252", "25 \xB0\x43, 1 \xB5\x46", "25 \u00B0C, 1 \u00B5F"},
                    FileRow{"UTF-8 that is cut", "a\xC2", "a\u00C2"},
                    FileRow{"little-endian", "\xFF\xFE\xB0\0C\0"s, "\u00B0C"},
                    FileRow{"big-endian", "\xFE\xFF\0\xB0\0C"s, "\u00B0C"},
                    FileRow{"pair of halves", "\xFF\xFE\x3D\xD8\x00\xDE\x41\x00"s, "\U0001F600A"},
                    FileRow{"higher half alone", "\xFF\xFE\x3D\xD8\x41\x00"s, "\uFFFDA"},
                    FileRow{"lower half alone", "\xFF\xFE\x00\xDE"s, "\uFFFD"},
                    FileRow{"higher half at the end", "\xFF\xFE\x3D\xD8"s, "\uFFFD"},
                    FileRow{"half a unit", "\xFF\xFE\x41\x00\x42"s, "A\uFFFD"}),
    RowName<FileRow>);

TEST(EndOfUtf8, IsWhereACharacterIsNotWhole)
{
    EXPECT_EQ(EndOfUtf8("a\u00B0"), 3U);
    EXPECT_EQ(EndOfUtf8("a\xC2"), 1U);
    EXPECT_EQ(EndOfUtf8("ab\x80"), 2U);
    EXPECT_EQ(EndOfUtf8("a\xF5\x80\x80\x80"), 1U);
}
} // namespace

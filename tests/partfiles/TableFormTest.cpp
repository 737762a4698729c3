#include "partfiles/TableForm.h"

#include "partfiles/TableReader.h"
#include "partfiles/TableWriter.h"
#include "tests/calc/NamedRow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace
{
struct Form
{
    std::string Name;
    std::function<std::string(std::string)> Save;
    std::size_t Line;
    std::string Cause;
};

std::string Replaced(std::string text, char from, char to)
{
    std::ranges::replace(text, from, to);
    return text;
}

/// The text in two-byte units, which is enough for its letters.
std::string Utf16Of(const std::string& text, bool bigEndian, const std::string& mark)
{
    std::string wide = mark;
    for (const char c : text)
    {
        wide += bigEndian ? std::string{'\0', c} : std::string{c, '\0'};
    }
    return wide;
}

const std::vector<Form> Forms = {
    {"semicolons", [](const std::string& text) { return Replaced(text, ',', ';'); }, 1, "semicolons"},
    {"tabs", [](const std::string& text) { return Replaced(text, ',', '\t'); }, 1, "tabs"},
    {"UTF-16 little-endian", [](const std::string& text) { return Utf16Of(text, false, "\xFF\xFE"); }, 1,
     "UTF-16"},
    {"UTF-16 big-endian", [](const std::string& text) { return Utf16Of(text, true, "\xFE\xFF"); }, 1,
     "UTF-16"},
    {"UTF-16 without a mark", [](const std::string& text) { return Utf16Of(text, false, ""); }, 1, "UTF-16"},
    {"Windows-1252", [](const std::string& text) { return text + "\xB0"; }, 2, "Windows-1252"},
    {"comma behind all headings",
     [](const std::string& text) { return text.substr(0, text.size() - 1) + ",\n"; }, 1,
     "a comma ends the line"},
};

class FormTest : public testing::TestWithParam<Form>
{
};

TEST_P(FormTest, IsToldByOneErrorThatNamesTheCause)
{
    const auto errors = ReadTable(GetParam().Save(TableText({}, "\n"))).Errors;
    ASSERT_EQ(errors.size(), 1U);
    EXPECT_EQ(errors[0].Line, GetParam().Line);
    EXPECT_THAT(errors[0].Message, testing::HasSubstr(GetParam().Cause));
}

INSTANTIATE_TEST_SUITE_P(Forms, FormTest, testing::ValuesIn(Forms), RowName<Form>);

TEST(TableForm, HasNoFaultInUtf8)
{
    EXPECT_FALSE(FaultOfForm(""));
    EXPECT_FALSE(FaultOfForm("a,b;c,\xC2\xB0\n"));
    EXPECT_FALSE(FaultOfForm("\xEF\xBB\xBF"
                             "a,\xE2\x82\xAC,\xF0\x9F\x98\x80\n"));
}

TEST(TableForm, TellsTheLineOfACutCharacter)
{
    EXPECT_EQ(FaultOfForm("a,b\nc,d\n\xE2\x82")->Line, 3U);
    EXPECT_EQ(FaultOfForm("a,b\n\xC0\x80\n")->Line, 2U);
}
} // namespace

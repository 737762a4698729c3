#include "stress/WaveformError.h"
#include "stress/WaveformTable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace
{
using testing::ElementsAre;
using testing::HasSubstr;

/// Eight rows of time and current, after what stands before them.
std::string Rows(const std::string& before, const std::string& separator = "\t",
                 const std::string& lineEnd = "\n")
{
    std::string text = before;
    for (int i = 0; i < 8; ++i)
    {
        text += std::to_string(i) + separator + std::to_string(i % 3) + lineEnd;
    }
    return text;
}

std::string Refusal(const std::string& text)
{
    try
    {
        ReadWaveforms(text);
    }
    catch (const WaveformError& error)
    {
        return error.what();
    }
    return "";
}

std::vector<std::string> NamesOf(const WaveformTable& table)
{
    std::vector<std::string> names;
    for (const WaveColumn& column : table.Columns)
    {
        names.push_back(std::to_string(column.Number) + ' ' + column.Name);
    }
    return names;
}

std::string FileText(const std::string& name)
{
    std::ifstream file(std::string(TEST_DATA) + "/stress/waveforms/" + name, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

class NgspiceFile : public testing::TestWithParam<std::string>
{
};

/// One circuit, written in every way.
TEST_P(NgspiceFile, HoldsTheSameCurrent)
{
    const auto table = ReadWaveforms(FileText(GetParam()));
    const auto expected = ReadWaveforms(FileText("wrdata-single.txt"));
    const bool isNamed = GetParam().find("plain") == std::string::npos;
    const bool repeatsTime = GetParam().starts_with("wrdata-each");
    const auto& current = ColumnOf(table, isNamed ? "i(V1)" : (repeatsTime ? "6" : "4"));
    ASSERT_EQ(table.Seconds.size(), expected.Seconds.size());
    for (std::size_t i = 0; i < table.Seconds.size(); ++i)
    {
        // As many digits as print writes of a negative number.
        EXPECT_NEAR(table.Seconds[i], expected.Seconds[i], 1e-6 * expected.Seconds[i]);
        EXPECT_NEAR(current.Values[i], expected.Columns[2].Values[i], 1e-5 * std::abs(current.Values[i]));
    }
}

INSTANTIATE_TEST_SUITE_P(, NgspiceFile,
                         testing::Values("wrdata-each-named.txt", "wrdata-each-plain.txt",
                                         "wrdata-single.txt", "wrdata-single-plain.txt", "print-paged.txt",
                                         "print-whole.txt", "print-wide-paged.txt", "print-wide-whole.txt"));

TEST(ReadWaveforms, JoinsThePrintedBlocks)
{
    EXPECT_THAT(NamesOf(ReadWaveforms(FileText("print-wide-paged.txt"))),
                ElementsAre("2 v(in)", "3 v(out)", "4 i(v1)", "5 v(in)-v(out)", "6 v(in)*2", "7 v(out)*2",
                            "8 v(out)*3"));
}

TEST(ReadWaveforms, DropsTheTimesBeforeEachColumn)
{
    EXPECT_THAT(NamesOf(ReadWaveforms(FileText("wrdata-each-named.txt"))),
                ElementsAre("2 v(in)", "4 v(out)", "6 i(V1)"));
}

struct Form
{
    const char* Name;
    std::string Text;
    std::string Column = "I(C1)";
    /// At 2 s.
    double Value = 2;
};

class WaveformForm : public testing::TestWithParam<Form>
{
};

TEST_P(WaveformForm, IsRead)
{
    const auto table = ReadWaveforms(GetParam().Text);
    EXPECT_EQ(table.Columns.front().Name, GetParam().Column);
    ASSERT_EQ(table.Seconds.size(), 8U);
    EXPECT_DOUBLE_EQ(table.Columns.front().Values[2], GetParam().Value);
}

std::string Utf16(const std::string& text)
{
    std::string wide = "\xFF\xFE";
    for (const char c : text)
    {
        wide += c;
        wide += '\0';
    }
    return wide;
}

INSTANTIATE_TEST_SUITE_P(
    , WaveformForm,
    testing::Values(
        Form{"Tabs", Rows("time\tI(C1)\n")}, Form{"CommasAndLineEnds", Rows("Time,I(C1)\r\n", ",", "\r\n")},
        Form{"QuotedNames", Rows("\"Time\",\"I(C1)\"\n", ",")},
        Form{"SemicolonsAndDecimalCommas", Rows("Time;I(C1)\n", ",0;", ",0\n")},
        Form{"Blanks", Rows("  time   I(C1)\n", "   ")}, Form{"NoHeading", Rows("", " "), "2"},
        Form{"CommaInAName", Rows("time\tV(a,b)\n"), "V(a,b)"}, Form{"Utf16", Utf16(Rows("time\tI(C1)\n"))},
        Form{"Mark", Rows("\xEF\xBB\xBFtime\tI(C1)\n")},
        Form{"Windows1252", Rows("time [\xB5s],current [mA]\n", ","), "current [mA]", 2e-3},
        Form{"Oscilloscope", Rows("Model,X1000\nRecord Length,8\nSource,CH1\nSecond,Volt\n", ","), "Volt"},
        Form{"UnitsBelowNames", Rows("Time,Channel A\n(us),(mA)\n\n", ","), "Channel A [mA]", 2e-3},
        Form{"EmptyLinesBetween", Rows("time I(C1)\n\n", " ", "\n\n")}),
    [](const auto& info) { return std::string(info.param.Name); });

TEST(ReadWaveforms, ScalesTheTimeByItsUnit)
{
    EXPECT_DOUBLE_EQ(ReadWaveforms(Rows("Time [us],I\n", ",")).Seconds.back(), 7e-6);
    EXPECT_DOUBLE_EQ(ReadWaveforms(Rows("Time,I\n(ms),(A)\n", ",")).Seconds.back(), 7e-3);
}

TEST(ReadWaveforms, TakesEqualTimesForAJump)
{
    const auto table = ReadWaveforms("0 0\n1 1\n1 5\n2 5\n3 5\n4 5\n5 5\n6 5\n");
    EXPECT_DOUBLE_EQ(table.WaveformOf(table.Columns.front()).At(1), 5);
}

TEST(ReadWaveforms, RefusesWithTheLine)
{
    EXPECT_EQ(Refusal(Rows("t\ti\n") + "8\t1\t2\n"), "line 10: 3 cells, where the lines before have 2");
    EXPECT_EQ(Refusal(Rows("t\ti\n") + "8\tabc\n"), "line 10: \"abc\" is no finite number");
    EXPECT_EQ(Refusal(Rows("t\ti\n") + "8\tnan\n"), "line 10: \"nan\" is no finite number");
    EXPECT_EQ(Refusal(Rows("t\ti\n") + "8\t1e999\n"), "line 10: \"1e999\" is no finite number");
    EXPECT_EQ(Refusal(Rows("t\ti\n") + "8\t-2e12\n"), "line 10: \"-2e12\" is too large");
    EXPECT_EQ(Refusal(Rows("t\ti\n") + "abc\t1\n"), "line 10: \"abc\" is no finite number");
    EXPECT_EQ(Refusal(Rows("t\ti\n") + "3\t1\n"),
              "line 10: the time falls, so a second run begins; export one run");
    EXPECT_EQ(Refusal(Rows("t\ti\n") + "Step Information: C=1u\n0\t1\n"),
              "line 10: a second run begins; export one run");
}

TEST(RefuseTooLarge, TellsTheLimit)
{
    EXPECT_NO_THROW(RefuseTooLarge(MostWaveformBytes));
    try
    {
        RefuseTooLarge(MostWaveformBytes + 1);
        FAIL() << "is taken";
    }
    catch (const WaveformError& error)
    {
        EXPECT_STREQ(error.what(),
                     "is larger than 1 GiB: export fewer columns, a shorter time or coarser steps");
    }
}

TEST(ReadWaveforms, RefusesWhatIsNoTable)
{
    EXPECT_EQ(Refusal(""), "there are no rows of numbers, of which the first is the time");
    EXPECT_EQ(Refusal("1\n2\n3\n"), "there are no rows of numbers, of which the first is the time");
    EXPECT_EQ(Refusal("0 1\n1 2\n"), "there are only 2 rows; at least 8 are wanted");
    EXPECT_EQ(Refusal("Title: buck\nPlotname: x\nBinary:\n\1\2"),
              "is a raw file: export the waveform as text");
    EXPECT_EQ(Refusal(std::string("\0\1\2\3", 4)), "is a binary file: export the waveform as text");
    EXPECT_EQ(Refusal("1 0\n1 1\n1 2\n1 3\n1 4\n1 5\n1 6\n1 7\n"), "the time does not go by");
    EXPECT_EQ(Refusal("0 0\n1 1\n2 2\n3 3\n4 4\n5 5\n6 6\n7 7\n"), "there is no column besides the time");
}

WaveformTable TableNamed(std::initializer_list<const char*> names)
{
    WaveformTable table;
    std::size_t number = 1;
    for (const char* name : names)
    {
        table.Columns.push_back({.Name = name, .Number = ++number, .Unit = "", .Values = {}});
    }
    return table;
}

TEST(ColumnOf, TakesTheOnlyCurrent)
{
    EXPECT_EQ(ColumnOf(TableNamed({"anything"}), {}).Number, 2U);
    EXPECT_EQ(ColumnOf(TableNamed({"V(out)", "Ix(C1:1)", "V(in)"}), {}).Number, 3U);
    EXPECT_EQ(ColumnOf(TableNamed({"v(out)", "@r.xc1.rs[i]"}), {}).Number, 3U);
    EXPECT_EQ(ColumnOf(TableNamed({"v(out)", "v1#branch"}), {}).Number, 3U);
}

TEST(ColumnOf, TakesANameOrANumber)
{
    const auto table = TableNamed({"V(out)", "I(C1) [mA]", "I(C2)"});
    EXPECT_EQ(ColumnOf(table, "i(c2)").Number, 4U);
    EXPECT_EQ(ColumnOf(table, "i(c1)").Number, 3U);
    EXPECT_EQ(ColumnOf(table, "3").Number, 3U);
}

std::string Unnamed(const WaveformTable& table, const std::optional<std::string>& wanted)
{
    try
    {
        ColumnOf(table, wanted);
    }
    catch (const WaveformError& error)
    {
        return error.what();
    }
    return "";
}

TEST(ColumnOf, ListsTheNamesWhereNoneFits)
{
    EXPECT_EQ(Unnamed(TableNamed({"I(C1)", "I(C2)"}), {}),
              "which column is the current? There are 2 I(C1), 3 I(C2)");
    EXPECT_EQ(Unnamed(TableNamed({"V(a)", "V(b)"}), {}),
              "which column is the current? There are 2 V(a), 3 V(b)");
    EXPECT_EQ(Unnamed(TableNamed({"I(C1)"}), "I(C3)"), "there is no column \"I(C3)\"; there are 2 I(C1)");
    EXPECT_EQ(Unnamed(TableNamed({"Volt", "Volt"}), "Volt"),
              "several columns are called \"Volt\"; there are 2 Volt, 3 Volt");
}
} // namespace

#include "partfiles/TableReader.h"

#include "partfiles/TableWriter.h"
#include "tests/calc/NamedRow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <functional>

namespace
{
using Cells = std::vector<std::string>;

Cells Headings()
{
    Cells cells;
    for (std::size_t i = 0; i < TableColumns; ++i)
    {
        cells.emplace_back(ColumnHeading(i));
    }
    return cells;
}

Cells PartCells(const std::string& name)
{
    Cells cells = {name + "1", name + "2", name + "3", name + "4", "0402", "1005", "X7R", "R"};
    cells.resize(TableColumns, "1.5");
    return cells;
}

std::string Joined(const Cells& cells)
{
    std::string line;
    for (const auto& cell : cells)
    {
        line += (line.empty() ? "" : ",") + cell;
    }
    return line;
}

/// Headings and two parts, as lines 1 to 3.
struct SmallTable
{
    Cells Head = Headings();
    Cells First = PartCells("A");
    Cells Second = PartCells("B");

    std::string Text(const std::string& lineEnd = "\n") const
    {
        return Joined(Head) + lineEnd + Joined(First) + lineEnd + Joined(Second) + lineEnd;
    }
};

struct BrokenTable
{
    std::string Name;
    std::function<void(SmallTable&)> Break;
    /// What "data build" writes, behind "t.csv: ".
    std::string Line;
};

class BrokenTableTest : public testing::TestWithParam<BrokenTable>
{
};

TEST_P(BrokenTableTest, GetsItsLine)
{
    SmallTable table;
    GetParam().Break(table);
    const auto read = ReadTable(table.Text());
    ASSERT_THAT(read.Errors, testing::SizeIs(1));
    EXPECT_EQ(LineOf(read.Errors[0], "t.csv"), "t.csv: " + GetParam().Line);
}

std::function<void(SmallTable&)> SecondCell(std::size_t column, const std::string& text)
{
    return [=](SmallTable& table) { table.Second[column] = text; };
}

INSTANTIATE_TEST_SUITE_P(
    Tables, BrokenTableTest,
    testing::Values(
        BrokenTable{"word for a number", SecondCell(10, "abc"),
                    "line 3: rated voltage [V]: \"abc\": not a number"},
        BrokenTable{"empty number", SecondCell(10, ""), "line 3: rated voltage [V]: \"\": not a number"},
        BrokenTable{"decimal comma in quotes", SecondCell(10, "\"6,3\""),
                    "line 3: rated voltage [V]: \"6,3\": not a number"},
        BrokenTable{"number and unit", SecondCell(8, "100 pF"),
                    "line 3: capacitance [pF]: \"100 pF\": not a number"},
        BrokenTable{"infinity as a word", SecondCell(73, "inf"),
                    "line 3: upper temperature [°C]: \"inf\": not a number"},
        BrokenTable{"nan as a word", SecondCell(73, "nan"),
                    "line 3: upper temperature [°C]: \"nan\": not a number"},
        BrokenTable{"too large", SecondCell(8, "1e39"),
                    "line 3: capacitance [pF]: \"1e39\": the number is too large or too small for a single"},
        BrokenTable{"too small", SecondCell(8, "1e-60"),
                    "line 3: capacitance [pF]: \"1e-60\": the number is too large or too small for a single"},
        BrokenTable{"seven digits of bits", SecondCell(8, "0x7F80000"),
                    "line 3: capacitance [pF]: \"0x7F80000\": not the eight hexadecimal digits of a single"},
        BrokenTable{"no digits of bits", SecondCell(8, "0x7F80000G"),
                    "line 3: capacitance [pF]: \"0x7F80000G\": not the eight hexadecimal digits of a single"},
        BrokenTable{"cell missing", [](SmallTable& table) { table.First.pop_back(); },
                    "line 2: 73 cells instead of 74"},
        BrokenTable{"cell too many", [](SmallTable& table) { table.First.emplace_back("1"); },
                    "line 2: 75 cells instead of 74"},
        BrokenTable{"no closing quote", SecondCell(4, "\"0402"),
                    // The cell runs to the end of the table; 80 characters of it are shown.
                    "line 3: size code EIA: \"0402,1005,X7R,R,1.5,1.5,1.5,1.5,1.5,1.5,1.5,1.5,"
                    "1.5,1.5,1.5,1.5,1.5,1.5,1.5,1.5,...\": no closing quote"},
        BrokenTable{"text behind a quote", SecondCell(4, "\"04\"02"),
                    "line 3: size code EIA: \"04\": text behind the closing quote"},
        BrokenTable{"quote within a cell", SecondCell(4, "04\"02"),
                    "line 3: size code EIA: \"04\"02\": a quote within a cell without quotes"},
        BrokenTable{"unknown column", [](SmallTable& table) { table.Head.emplace_back("price [EUR]"); },
                    "line 1: \"price [EUR]\": no column of this name is known"},
        BrokenTable{"column missing", [](SmallTable& table) { table.Head.pop_back(); },
                    "line 1: upper temperature [°C]: the column is missing"},
        BrokenTable{"column twice", [](SmallTable& table) { table.Head.push_back(table.Head[10]); },
                    "line 1: rated voltage [V]: the column stands twice"},
        BrokenTable{"quotes of headings", [](SmallTable& table) { table.Head[0] = "\"global\" part"; },
                    "line 1: \"global\": text behind the closing quote"},
        BrokenTable{"duplicate in form 0", SecondCell(0, "A1"),
                    "line 3: global part number EIA: \"A1\": the part number stands in line 2 already"},
        BrokenTable{"duplicate in form 3 in another case", SecondCell(3, "a4"),
                    "line 3: previous part number JIS: \"a4\": the part number stands in line 2 already"},
        BrokenTable{
            "character outside the code page", SecondCell(0, "B\u2126"),
            "line 3: global part number EIA: \"B\u2126\": a character that the index file cannot hold"},
        BrokenTable{
            "no UTF-8", SecondCell(0, "B\xB0"),
            "line 3: a character is not in UTF-8, perhaps in Windows-1252; save the table as comma-separated "
            "values in UTF-8"},
        BrokenTable{
            "quote and comma in a name", SecondCell(0, "\"B\"\",1\""),
            "line 3: global part number EIA: \"B\",1\": a quote beside a comma, a line break, or at the "
            "start or blanks at an end cannot be written"},
        BrokenTable{
            "quote at the start of a name", SecondCell(0, "\"\"\"B\""),
            "line 3: global part number EIA: \"\"B\": a quote beside a comma, a line break, or at the "
            "start or blanks at an end cannot be written"},
        BrokenTable{
            "quote and a tab at the start of a name", SecondCell(0, "\"\tB\"\"1\""),
            "line 3: global part number EIA: \"\\x09B\"1\": a quote beside a comma, a line break, or at the "
            "start or blanks at an end cannot be written"},
        BrokenTable{
            "quote and a blank at the end of a name", SecondCell(0, "\"B\"\"1 \""),
            "line 3: global part number EIA: \"B\"1 \": a quote beside a comma, a line break, or at the "
            "start or blanks at an end cannot be written"},
        BrokenTable{
            "nine digits of bits", SecondCell(8, "0x7F8000000"),
            "line 3: capacitance [pF]: \"0x7F8000000\": not the eight hexadecimal digits of a single"},
        BrokenTable{"sign among the digits of bits", SecondCell(8, "0x-0000001"),
                    "line 3: capacitance [pF]: \"0x-0000001\": not the eight hexadecimal digits of a single"},
        BrokenTable{"fault behind the last column",
                    [](SmallTable& table) { table.First.emplace_back("x\"y"); },
                    "line 2: \"x\"y\": a quote within a cell without quotes"},
        BrokenTable{"line break in a number", SecondCell(8, "\"1\n2\""),
                    "line 3: capacitance [pF]: \"1\\x0A2\": not a number"}),
    RowName<BrokenTable>);

TEST(TableReader, RefusesAnEmptyFile)
{
    const auto read = ReadTable("");
    ASSERT_THAT(read.Errors, testing::SizeIs(1));
    EXPECT_EQ(LineOf(read.Errors[0], "t.csv"), "t.csv: line 1: the line of headings is missing");
}

TEST(TableReader, TellsEveryErrorOfATable)
{
    SmallTable table;
    table.First[10] = "x";
    table.First[11] = "y";
    table.Second.pop_back();
    EXPECT_THAT(ReadTable(table.Text()).Errors, testing::SizeIs(3));
}

TEST(TableReader, TellsOfAFileWithTooManyColumnsOnce)
{
    const auto most = std::string(2 * TableColumns - 1, ',');
    EXPECT_THAT(ReadTable(most + "\n").Errors, testing::SizeIs(3 * TableColumns));
    const auto read = ReadTable(most + ",\n");
    ASSERT_THAT(read.Errors, testing::SizeIs(1));
    EXPECT_EQ(read.Errors[0].Line, 1U);
    EXPECT_EQ(read.Errors[0].Message,
              std::to_string(2 * TableColumns + 1) + " columns: this is no table of parts");
}

TEST(TableReader, ReadsNoFurtherAfterTenThousandErrors)
{
    std::string text = Joined(Headings()) + "\n";
    for (int row = 0; row < 10050; ++row)
    {
        text += "nothing\n";
    }
    const auto read = ReadTable(text);
    ASSERT_THAT(read.Errors, testing::SizeIs(10001));
    EXPECT_EQ(read.Errors.back().Line, 10002U);
    EXPECT_EQ(read.Errors.back().Message, "too many errors: the rest of the table was not read");
}

TEST(TableReader, CountsLinesWithinQuotes)
{
    SmallTable table;
    table.First[4] = "\"04\n02\"";
    table.Second[8] = "x";
    const auto read = ReadTable(table.Text());
    ASSERT_THAT(read.Errors, testing::SizeIs(1));
    EXPECT_EQ(read.Errors[0].Line, 4U);
    EXPECT_EQ(read.Parts.at(0).Names[4], "04\n02");
}

TEST(TableReader, RefusesMorePartsThanCanBeLoaded)
{
    SmallTable table;
    auto text = Joined(table.Head) + "\n";
    for (int i = 0; i < 32767; ++i)
    {
        text += Joined(PartCells(std::to_string(i) + "-")) + "\n";
    }
    EXPECT_THAT(ReadTable(text).Errors, testing::IsEmpty());
    const auto read = ReadTable(text + Joined(table.Second) + "\n");
    ASSERT_THAT(read.Errors, testing::SizeIs(1));
    EXPECT_EQ(LineOf(read.Errors[0], "t.csv"), "t.csv: line 32769: more than 32767 parts");
}

TEST(TableReader, KnowsColumnsByTheirHeadings)
{
    SmallTable table;
    std::swap(table.Head[0], table.Head[10]);
    std::swap(table.First[0], table.First[10]);
    std::swap(table.Second[0], table.Second[10]);
    table.First[0] = "16";
    const auto read = ReadTable(table.Text());
    ASSERT_THAT(read.Parts, testing::SizeIs(2));
    EXPECT_EQ(read.Parts[0].Names[0], "A1");
    EXPECT_EQ(read.Parts[0].Data[Value::RatedVoltage], 16);
}

TEST(TableReader, TakesTablesFromSpreadsheets)
{
    const auto read = ReadTable("\xEF\xBB\xBF" + SmallTable().Text("\r\n") + "\r\n");
    EXPECT_THAT(read.Errors, testing::IsEmpty());
    EXPECT_THAT(read.Parts, testing::SizeIs(2));
    EXPECT_EQ(read.LineEnd, "\r\n");
}

TEST(TableReader, ReadsNamesIntoTheCodePageOfTheIndex)
{
    SmallTable table;
    table.First[0] = "\"85°, \u20AC\"";
    EXPECT_EQ(ReadTable(table.Text()).Parts.at(0).Names[0], "85\xB0, \x80");
}

struct SpecialNumber
{
    std::string Name;
    std::uint32_t Bits;
    std::string Text;
};

class SpecialNumberTest : public testing::TestWithParam<SpecialNumber>
{
};

TEST_P(SpecialNumberTest, ComesBackBitForBit)
{
    const auto& row = GetParam();
    EXPECT_EQ(NumberCell(std::bit_cast<float>(row.Bits)), row.Text);
    SmallTable table;
    table.First[8] = row.Text;
    const auto read = ReadTable(table.Text());
    ASSERT_THAT(read.Errors, testing::IsEmpty());
    EXPECT_EQ(std::bit_cast<std::uint32_t>(read.Parts.at(0).Data[Value::Capacitance]), row.Bits);
}

INSTANTIATE_TEST_SUITE_P(Numbers, SpecialNumberTest,
                         testing::Values(SpecialNumber{"zero", 0, "0"},
                                         SpecialNumber{"negative zero", 0x80000000, "-0"},
                                         SpecialNumber{"infinity", 0x7F800000, "0x7F800000"},
                                         SpecialNumber{"negative infinity", 0xFF800000, "0xFF800000"},
                                         SpecialNumber{"quiet nan", 0x7FC00000, "0x7FC00000"},
                                         SpecialNumber{"nan with a payload", 0xFFC12345, "0xFFC12345"},
                                         SpecialNumber{"smallest single", 1, "1E-45"},
                                         SpecialNumber{"largest single", 0x7F7FFFFF, "3.4028235E+38"},
                                         SpecialNumber{"a tenth", 0x3DCCCCCD, "0.1"}),
                         RowName<SpecialNumber>);
} // namespace

#include "separatedtext/LineCells.h"

#include "separatedtext/DecimalNumber.h"
#include "separatedtext/Separator.h"
#include "tests/calc/NamedRow.h"

#include <gmock/gmock.h>

#include <span>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
using Lines = std::vector<std::string_view>;

Lines LinesOf(std::string_view text)
{
    Lines lines;
    TextLines reader(text);
    for (std::string_view line; reader.Read(line);)
    {
        lines.push_back(line);
        EXPECT_EQ(reader.Line(), lines.size());
    }
    return lines;
}

TEST(TextLines, EndAtEveryKindOfLineEnd)
{
    EXPECT_THAT(LinesOf("a\nb\r\nc\rd"), ElementsAre("a", "b", "c", "d"));
    EXPECT_THAT(LinesOf("a\n\n\r\nb\n"), ElementsAre("a", "", "", "b"));
    EXPECT_THAT(LinesOf(""), IsEmpty());
    EXPECT_THAT(LinesOf("\n"), ElementsAre(""));
}

struct LineRow
{
    const char* Name;
    std::string_view Line;
    char Separator;
    Lines Cells;
};

class LinesOfCells : public testing::TestWithParam<LineRow>
{
};

TEST_P(LinesOfCells, AreSplitAtTheirSeparator)
{
    EXPECT_EQ(SeparatorOf(GetParam().Line), GetParam().Separator);
    Lines cells = {"of the line before"};
    SplitLine(GetParam().Line, GetParam().Separator, cells);
    EXPECT_EQ(cells, GetParam().Cells);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LinesOfCells,
    testing::Values(LineRow{"comma", "1, 2 ,3", ',', {"1", "2", "3"}},
                    LineRow{"semicolon before comma", "1,5;2,5", ';', {"1,5", "2,5"}},
                    LineRow{"tab before semicolon", "a;b\tc", '\t', {"a;b", "c"}},
                    LineRow{"comma in brackets", "time;V(a,b)", ';', {"time", "V(a,b)"}},
                    LineRow{
                        "comma in brackets alone", "time V(a,b) @r[i,1]", ' ', {"time", "V(a,b)", "@r[i,1]"}},
                    LineRow{"comma within quotes", "\"a,b\",\"c\"", ',', {"a,b", "c"}},
                    LineRow{"bracket within quotes", "\"(\",b", ',', {"(", "b"}},
                    LineRow{"closing bracket alone", "a),b", ',', {"a)", "b"}},
                    LineRow{"open bracket", "(a,b", ' ', {"(a,b"}},
                    LineRow{"empty cells", ",1,,", ',', {"", "1", "", ""}},
                    LineRow{"tabs at both ends", "\t1\t", '\t', {"", "1", ""}},
                    LineRow{"runs of blanks", "  1   2 ", ' ', {"1", "2"}},
                    LineRow{"one cell", "1", ' ', {"1"}}, LineRow{"blanks alone", "   ", ' ', {}},
                    LineRow{"nothing", "", ' ', {}}, LineRow{"one quote", "\"", ' ', {"\""}}),
    RowName<LineRow>);

/// A record as long as those of simulators: `rows` lines of five numbers.
std::string LongRecord(std::size_t rows)
{
    std::string text;
    for (std::size_t i = 0; i < rows; ++i)
    {
        text += std::to_string(i) + ".00000e-09;1,50000e+00;-2.5000000e+00;3.25e-03;4,125\n";
    }
    return text;
}

TEST(SplitLine, ReadsEveryNumberOfALongRecord)
{
    constexpr std::size_t Rows = 20000;
    const auto text = LongRecord(Rows);
    std::vector<std::string_view> cells;
    TextLines lines(text);
    double sum = 0;
    for (std::string_view line; lines.Read(line);)
    {
        SplitLine(line, ';', cells);
        ASSERT_EQ(cells.size(), 5U);
        for (const auto cell : std::span(cells).subspan(1))
        {
            sum += DecimalIn(cell, TakesDecimalComma(';')).value();
        }
    }
    EXPECT_NEAR(sum, Rows * (1.5 - 2.5 + 3.25e-3 + 4.125), 1e-6);
}
} // namespace

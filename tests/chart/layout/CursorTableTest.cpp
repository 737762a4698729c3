/// The table of a chart view: its headings and cells at one cursor and at two.

#include "chart/layout/CursorTable.h"

#include "calc/Calculate.h"
#include "calc/ValueAt.h"
#include "files/PartLoading.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace
{
/// Two parts of the sample range over temperature.
class CursorTables : public testing::Test
{
protected:
    void SetUp() override
    {
        for (const std::size_t part : {0U, 5U})
        {
            ChartRecord line;
            line.ChartType = 2;
            line.XAxisName = "Temperature";
            line.YAxisName = "Capacitance";
            line.PartDataIndex = static_cast<std::int32_t>(part);
            line.DCBiasVoltage = 2;
            Calculate(parts.PartData[part], line, CodeView::Eia);
            const PartRecord& record = parts.PartData[part];
            lines.push_back({.Line = line, .Part = record, .PartNumber = std::string(record.PartNum[0])});
        }
        cursors.Start(85);
    }

    CursorTable Table() const { return CursorTableOf(lines, cursors, CodeView::Eia, "\u00B0"); }

    static std::vector<std::string> Headings(const CursorTable& table)
    {
        std::vector<std::string> texts;
        for (const CursorHeading& heading : table.Headings)
        {
            texts.push_back(heading.Text);
        }
        return texts;
    }

    PartTable parts = LoadPartData(SAMPLE_RANGE);
    std::vector<ViewedLine> lines;
    ChartCursors cursors;
};
} // namespace

TEST_F(CursorTables, OneCursorTellsValuesAndDifferencesToTheFirstLine)
{
    const auto table = Table();
    EXPECT_THAT(Headings(table),
                ElementsAre("No.", "Part number", "Capacitance at 85 \u00B0C", "To No.1", "Conditions"));
    EXPECT_EQ(table.Headings[2].Short, "At 85 \u00B0C");
    EXPECT_EQ(table.Headings[2].Copied, "Capacitance at 85 \u00B0C [pF]");
    ASSERT_EQ(table.Rows.size(), 2U);
    EXPECT_EQ(table.Rows[0][0].Text, "1");
    EXPECT_EQ(table.Rows[1][1].Text, lines[1].PartNumber);
    EXPECT_EQ(table.Rows[0][3].Text, "\u2013");
    EXPECT_EQ(table.Rows[0][4].Text, "2 V");
    const double first = *ValueAt(lines[0].Part, lines[0].Line, 85, CodeView::Eia);
    const double second = *ValueAt(lines[1].Part, lines[1].Line, 85, CodeView::Eia);
    EXPECT_EQ(table.Find(0, CursorColumn::Value)->Number, first);
    EXPECT_EQ(table.Find(1, CursorColumn::ToFirst)->Number, second - first);
    EXPECT_EQ(table.Find(1, CursorColumn::Ratio), nullptr);
}

TEST_F(CursorTables, TwoCursorsTellDifferencesAndRatios)
{
    cursors.Pin(25);
    cursors.Follow(85);
    const auto table = Table();
    EXPECT_THAT(Headings(table), ElementsAre("No.", "Part number", "B: 85 \u00B0C", "B to No.1",
                                             "A: 25 \u00B0C", "B \u2212 A", "B / A", "Conditions"));
    const double a = *ValueAt(lines[1].Part, lines[1].Line, 25, CodeView::Eia);
    const double b = *ValueAt(lines[1].Part, lines[1].Line, 85, CodeView::Eia);
    EXPECT_EQ(table.Find(1, CursorColumn::Difference)->Number, b - a);
    EXPECT_EQ(table.Find(1, CursorColumn::Ratio)->Number, b / a);
}

TEST_F(CursorTables, WhereALineHasNoValueThereIsADash)
{
    cursors.Follow(500);
    const auto table = Table();
    EXPECT_EQ(table.Find(0, CursorColumn::Value)->Text, "\u2013");
    EXPECT_EQ(table.Find(0, CursorColumn::Value)->Plain, "");
    EXPECT_EQ(table.Find(1, CursorColumn::ToFirst)->Text, "\u2013");
    EXPECT_FALSE(table.Find(1, CursorColumn::ToFirst)->Number);
}

TEST_F(CursorTables, SamePlaceIsNoDifferenceAndARatioOfOne)
{
    cursors.Pin(85);
    const auto table = Table();
    EXPECT_TRUE(table.Find(0, CursorColumn::Difference)->Text.starts_with("0 "));
    EXPECT_EQ(table.Find(0, CursorColumn::Ratio)->Text, "1.000");
}

TEST_F(CursorTables, APlainNumberIsInTheUnitOfTheAxis)
{
    const double first = *ValueAt(lines[0].Part, lines[0].Line, 85, CodeView::Eia);
    EXPECT_EQ(std::stof(Table().Find(0, CursorColumn::Value)->Plain), static_cast<float>(first));
}

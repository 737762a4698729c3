#include "separatedtext/TableCells.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace
{
TEST(TableCells, StandBetweenTheSeparatorOfTheTable)
{
    TableCells cells("\xEF\xBB\xBF"
                     "a;\"b;\"\"c\";1,5\r\n\r\nd;;\r\n",
                     ';');
    TableRow row;
    ASSERT_TRUE(cells.Read(row));
    EXPECT_EQ(row.Line, 1U);
    EXPECT_THAT(row.Cells, ElementsAre("a", "b;\"c", "1,5"));
    ASSERT_TRUE(cells.Read(row));
    EXPECT_EQ(row.Line, 3U);
    EXPECT_THAT(row.Cells, ElementsAre("d", "", ""));
    EXPECT_FALSE(cells.Read(row));
}

TEST(TableCells, TellWhatIsWrongWithQuotes)
{
    TableCells cells("a;\"b\",c\nd\"\n\"e", ';');
    TableRow row;
    ASSERT_TRUE(cells.Read(row));
    EXPECT_EQ(row.Fault, "text behind the closing quote");
    ASSERT_TRUE(cells.Read(row));
    EXPECT_EQ(row.Fault, "a quote within a cell without quotes");
    ASSERT_TRUE(cells.Read(row));
    EXPECT_EQ(row.Fault, "no closing quote");
}

TEST(TableCells, KeepLineBreaksWithinQuotesAndCountThem)
{
    TableCells cells("\"a\nb\",c\nd");
    TableRow row;
    ASSERT_TRUE(cells.Read(row));
    EXPECT_THAT(row.Cells, ElementsAre("a\nb", "c"));
    ASSERT_TRUE(cells.Read(row));
    EXPECT_EQ(row.Line, 3U);
}
} // namespace

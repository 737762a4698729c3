/// References of parts on a board, as lists of them are written.

#include "board/References.h"

#include "tests/calc/NamedRow.h"

#include <gmock/gmock.h>

using testing::ElementsAreArray;
using testing::SizeIs;

namespace
{
struct ListRow
{
    const char* Name;
    const char* List;
    std::vector<std::string> References;
};

class ReferencesTest : public testing::TestWithParam<ListRow>
{
};
} // namespace

INSTANTIATE_TEST_SUITE_P(
    Lists, ReferencesTest,
    testing::Values(ListRow{"Nothing", " , ", {}}, ListRow{"One", "C1", {"C1"}},
                    ListRow{"Separators", "C1, C2 C3;C4\tC5", {"C1", "C2", "C3", "C4", "C5"}},
                    ListRow{"Range", "D2-5", {"D2", "D3", "D4", "D5"}},
                    ListRow{"RangeWithPrefixTwice", "C5-C7", {"C5", "C6", "C7"}},
                    ListRow{"RangeWithDots", "D2..5 C10..C11", {"D2", "D3", "D4", "D5", "C10", "C11"}},
                    ListRow{"FallingIsAName", "C10-1", {"C10-1"}},
                    ListRow{"EqualEndsAreAName", "C3-3", {"C3-3"}},
                    ListRow{"OtherPrefixIsAName", "C1-D3", {"C1-D3"}},
                    ListRow{"WithoutPrefixIsAName", "1-3", {"1-3"}},
                    ListRow{"TooFarIsAName", "C1-1002", {"C1-1002"}}),
    [](const auto& row) { return row.param.Name; });

TEST_P(ReferencesTest, AreReadFromLists)
{
    EXPECT_THAT(ReferencesIn(GetParam().List), ElementsAreArray(GetParam().References));
}

TEST(References, RiseByAThousandAtMost)
{
    EXPECT_THAT(ReferencesIn("C1-1001"), SizeIs(1001));
}

TEST(References, OfCapacitorsAreCAndDigits)
{
    EXPECT_TRUE(IsCapacitorReference("C16"));
    EXPECT_TRUE(IsCapacitorReference("c1"));
    EXPECT_FALSE(IsCapacitorReference("CN1"));
    EXPECT_FALSE(IsCapacitorReference("C"));
    EXPECT_FALSE(IsCapacitorReference("C1A"));
    EXPECT_FALSE(IsCapacitorReference(""));
}

TEST(References, AreToldWithLongRunsAsRanges)
{
    EXPECT_EQ(ReferenceText({"C1", "C2"}), "C1,C2");
    EXPECT_EQ(ReferenceText({"C3", "C4", "C5", "C6", "C9"}), "C3-C6,C9");
    EXPECT_EQ(ReferenceText({"C1", "X", "C2"}), "C1,X,C2");
}

TEST(References, OfOneListAreNoMoreThanOfABoard)
{
    std::string list;
    for (int i = 0; i < 200; ++i)
    {
        list += "C1-C1001 ";
    }
    EXPECT_THAT(ReferencesIn(list), SizeIs(testing::Lt(MostReferences + 1100)));
}

TEST(References, ReachToTheLargestNumber)
{
    EXPECT_EQ(ReferenceText({"C2147483646", "C2147483647", "C-2147483648", "X"}),
              "C2147483646,C2147483647,C-2147483648,X");
}

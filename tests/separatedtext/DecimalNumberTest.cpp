#include "separatedtext/DecimalNumber.h"

#include "tests/calc/NamedRow.h"

#include <gmock/gmock.h>

#include <limits>

namespace
{
struct NumberRow
{
    const char* Name;
    std::string Cell;
    bool TakesComma;
    std::optional<double> Value;
};

class CellsWithNumbers : public testing::TestWithParam<NumberRow>
{
};

TEST_P(CellsWithNumbers, AreRead)
{
    EXPECT_EQ(DecimalIn(GetParam().Cell, GetParam().TakesComma), GetParam().Value);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CellsWithNumbers,
    testing::Values(
        NumberRow{"digits", "12", false, 12}, NumberRow{"point", "4.7", false, 4.7},
        NumberRow{"comma", "4,7", true, 4.7}, NumberRow{"point where a comma may stand", "4.7", true, 4.7},
        NumberRow{"comma where none may stand", "4,7", false, std::nullopt},
        NumberRow{"two commas", "1,234,5", true, std::nullopt},
        NumberRow{"comma and point", "1.234,5", true, std::nullopt},
        NumberRow{"signs and exponent", "-1,5e-06", true, -1.5e-6}, NumberRow{"plus", "+3E+2", false, 300},
        NumberRow{"two signs", "+-3", false, std::nullopt},
        NumberRow{"no digit before the point", ".5", false, 0.5},
        NumberRow{"no digit behind the comma", "5,", true, 5},
        NumberRow{"sign alone", "-", false, std::nullopt}, NumberRow{"point alone", ".", false, std::nullopt},
        NumberRow{"nothing", "", true, std::nullopt}, NumberRow{"unit behind it", "12V", false, std::nullopt},
        NumberRow{"infinity", "-inf", false, std::nullopt},
        NumberRow{"not a number", "nan", false, std::nullopt},
        NumberRow{"hexadecimal", "0x10", false, std::nullopt},
        NumberRow{"smallest", "4.9406564584124654e-324", false, std::numeric_limits<double>::denorm_min()},
        NumberRow{"smaller than a double", "1e-400", false, 0},
        NumberRow{"greater than a double", "-1e400", false, std::nullopt},
        NumberRow{"longer than a program writes", std::string(65, '1'), true, std::nullopt}),
    RowName<NumberRow>);

TEST(DecimalIn, ReadsToTheNearestDouble)
{
    EXPECT_EQ(DecimalIn("0.1000000000000000055511151231257827", false), 0.1);
    EXPECT_EQ(DecimalIn("9007199254740993", false), 9007199254740992.0);
}

TEST(WithDecimalPoint, PutsAPointWhereOneCommaStands)
{
    EXPECT_EQ(WithDecimalPoint("4,7 uF"), "4.7 uF");
    EXPECT_EQ(WithDecimalPoint("12"), "12");
    EXPECT_EQ(WithDecimalPoint("1.234,5"), "1.234,5");
    EXPECT_EQ(WithDecimalPoint("1,234,5"), "1,234,5");
}
} // namespace

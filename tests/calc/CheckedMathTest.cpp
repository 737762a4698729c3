#include "calc/CheckedMath.h"
#include "tests/calc/NamedRow.h"

#include <limits>

namespace
{
struct PowerRow
{
    const char* Name;
    double Base;
    double Exponent;
    double Power;
};

class PowerWithAValue : public testing::TestWithParam<PowerRow>
{
};

TEST_P(PowerWithAValue, IsTheRealPower)
{
    EXPECT_DOUBLE_EQ(CheckedPower(GetParam().Base, GetParam().Exponent), GetParam().Power);
}

INSTANTIATE_TEST_SUITE_P(Rows, PowerWithAValue,
                         testing::Values(PowerRow{"zero to zero", 0, 0, 1},
                                         PowerRow{"zero to a fraction", 0, 0.5, 0},
                                         PowerRow{"positive to a negative fraction", 4, -0.5, 0.5},
                                         PowerRow{"negative to zero", -4, 0, 1},
                                         PowerRow{"negative keeps its sign", -2, 3, -8},
                                         PowerRow{"negative to an even number", -2, 4, 16},
                                         PowerRow{"negative to a negative number", -2, -3, -0.125}),
                         RowName<PowerRow>);

struct FaultRow
{
    const char* Name;
    double Base;
    double Exponent;
    int Error;
};

class PowerWithoutAValue : public testing::TestWithParam<FaultRow>
{
};

TEST_P(PowerWithoutAValue, IsAFault)
{
    try
    {
        const double power = CheckedPower(GetParam().Base, GetParam().Exponent);
        FAIL() << power;
    }
    catch (const RunTimeError& error)
    {
        EXPECT_EQ(error.Number(), GetParam().Error);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PowerWithoutAValue,
    testing::Values(FaultRow{"zero to a negative number", 0, -1, 5},
                    FaultRow{"zero to a negative fraction", 0, -0.5, 5},
                    FaultRow{"negative to a fraction", -2, 0.5, 5},
                    FaultRow{"negative to a negative fraction", -2, -1.5, 5},
                    FaultRow{"too large", 10, 309, 6}, FaultRow{"too large and negative", -10, 309, 6},
                    FaultRow{"of no number", std::numeric_limits<double>::quiet_NaN(), 1, 6}),
    RowName<FaultRow>);

TEST(StoredSingle, IsTheNearestSingleOrAFault)
{
    constexpr double largest = std::numeric_limits<float>::max();
    EXPECT_EQ(StoredSingle(0.1), 0.1F);
    EXPECT_EQ(StoredSingle(largest), std::numeric_limits<float>::max());
    EXPECT_EQ(StoredSingle(-largest), std::numeric_limits<float>::lowest());
    EXPECT_THROW(StoredSingle(2 * largest), RunTimeError);
    EXPECT_THROW(StoredSingle(-2 * largest), RunTimeError);
}
} // namespace

#include "calc/DefaultAxes.h"
#include "calc/CapacitanceAxes.h"
#include "partdata/RunTimeError.h"
#include "tests/calc/NamedRow.h"

namespace
{
struct RiseRow
{
    const char* Name;
    float LargestX;
    float LargestY;
    float XMax;
    float YMax;
};

class RiseAxes : public testing::TestWithParam<RiseRow>
{
};

TEST_P(RiseAxes, LeaveRoomAboveTheLargest)
{
    const auto& row = GetParam();
    const AxisLimits expected{.XMax = row.XMax, .YMax = row.YMax, .XMin = 0, .YMin = 0};
    EXPECT_EQ(SetDefaultAxes(row.LargestX, 0, row.LargestY, 0), expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, RiseAxes,
                         testing::Values(RiseRow{"nothing", 0, 0, 1, 10},
                                         RiseRow{"a whole X gets one more", 3, 5, 4, 10},
                                         RiseRow{"a fraction goes up", 3.01F, 9.9F, 4, 10},
                                         RiseRow{"a multiple of ten gets ten more", 1, 10, 2, 20},
                                         RiseRow{"just below the cut", 1, 74.9F, 2, 80},
                                         RiseRow{"at the cut", 1, 75, 2, 100},
                                         RiseRow{"at the ceiling", 1, 80, 2, 100}),
                         RowName<RiseRow>);

TEST(RiseAxesMinima, StayAsGiven)
{
    const auto limits = SetDefaultAxes(1, -3, 1, -7);
    EXPECT_EQ(limits.XMin, -3);
    EXPECT_EQ(limits.YMin, -7);
}

TEST(LogarithmicAxes, AreWholeDecadesAroundAllValues)
{
    const AxisLimits expected{.XMax = 1e6F, .YMax = 1000, .XMin = 1e4F, .YMin = 10};
    EXPECT_EQ(LogarithmicAxes(800, 45), expected);
    EXPECT_EQ(LogarithmicAxes(800, 10), expected);
}

TEST(LogarithmicAxes, AreADecadeWhereNothingCanBeDrawn)
{
    const AxisLimits expected{.XMax = 1e6F, .YMax = 1, .XMin = 1e4F, .YMin = 0.1F};
    EXPECT_EQ(LogarithmicAxes(0, 0), expected);
    EXPECT_EQ(LogarithmicAxes(5, -1), expected);
}

struct XRow
{
    const char* Name;
    float XMax;
    float XMin;
    float StoredMax;
    float StoredMin;
};

class CapacitanceXAxis : public testing::TestWithParam<XRow>
{
};

TEST_P(CapacitanceXAxis, IsWidenedForTheListedRangesOnly)
{
    const auto& row = GetParam();
    const auto limits = SetCapacitanceAxes(row.XMax, row.XMin, 0, 0, Quantity::CapacitanceChange);
    EXPECT_EQ(limits.XMax, row.StoredMax);
    EXPECT_EQ(limits.XMin, row.StoredMin);
}

INSTANTIATE_TEST_SUITE_P(Rows, CapacitanceXAxis,
                         testing::Values(XRow{"X7R", 125, -55, 125, -75},
                                         XRow{"X5R in EIA", 85, -55, 100, -75},
                                         XRow{"Y5V in EIA", 85, -30, 100, -50},
                                         XRow{"both in JIS", 85, -25, 100, -25},
                                         XRow{"not listed", 0, 0, 0, 0}, XRow{"volts", 6.3F, 0, 6.3F, 0},
                                         XRow{"maximum alone", 125, 0, 125, 0},
                                         XRow{"nearly a range", 85.00001F, -55, 85.00001F, -55}),
                         RowName<XRow>);

struct YRow
{
    const char* Name;
    Quantity Y;
    float Largest;
    float Smallest;
    float YMax;
    float YMin;
};

class CapacitanceYAxis : public testing::TestWithParam<YRow>
{
};

TEST_P(CapacitanceYAxis, HasOneStepOfHeadroom)
{
    const auto& row = GetParam();
    const auto limits = SetCapacitanceAxes(1, 0, row.Largest, row.Smallest, row.Y);
    EXPECT_EQ(limits.YMax, row.YMax);
    EXPECT_EQ(limits.YMin, row.YMin);
}

constexpr auto change = Quantity::CapacitanceChange;
constexpr auto capacitance = Quantity::Capacitance;

INSTANTIATE_TEST_SUITE_P(Change, CapacitanceYAxis,
                         testing::Values(YRow{"exactly 20", change, 20, -80, 30, -80},
                                         YRow{"below 20", change, 19.9F, -80.1F, 20, -90},
                                         YRow{"zero", change, 0, 0, 10, 0},
                                         YRow{"little", change, 0.5F, 0.1F, 10, 0},
                                         YRow{"negative largest goes to zero", change, -5, -9, 0, -10},
                                         YRow{"largest is rounded towards zero", change, -15, -25, -10, -30},
                                         YRow{"a whole negative largest stays", change, -20, -20, -20, -20}),
                         RowName<YRow>);

INSTANTIATE_TEST_SUITE_P(
    Capacitance, CapacitanceYAxis,
    testing::Values(YRow{"each limit has its own step", capacitance, 1234, 987, 2000, 900},
                    YRow{"the logarithm of 1000 is below 3", capacitance, 1000, 1000, 1100, 1000},
                    YRow{"exactly 100", capacitance, 100, 100, 200, 100},
                    YRow{"exactly 1", capacitance, 1, 1, 2, 1},
                    YRow{"beyond 32 bit", capacitance, 1.5e10F, 9.5e9F, 2e10F, 9e9F},
                    YRow{"tenths", capacitance, 0.47F, 0.32F, 0.5F, 0.3F},
                    YRow{"hundredths", capacitance, 0.047F, 0.0325F, 0.05F, 0.03F},
                    YRow{"one limit below 1", capacitance, 2.5F, 0.75F, 3, 0.7F},
                    YRow{"zero stays", capacitance, 0, 0, 0, 0},
                    YRow{"negative", capacitance, -250, -340, -200, -400},
                    YRow{"negative tenths", capacitance, -0.25F, -0.34F, -0.2F, -0.4F}),
    RowName<YRow>);

TEST(CapacitanceLimits, OfAnotherQuantityIsRefused)
{
    EXPECT_THROW(SetCapacitanceAxes(1, 0, 5, -5, Quantity::Current), RunTimeError);
}
} // namespace

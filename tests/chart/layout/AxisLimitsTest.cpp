#include "chart/layout/AxisLimits.h"

#include "calc/NumberText.h"

#include <gtest/gtest.h>

#include <limits>

/// A chart, its default ranges, and what a user may set, as a message shows it.
struct LimitRow
{
    const char* Name;
    ChartKey Chart;
    AxisRange Defaults;
    const char* XLowest;
    const char* XHighest;
    const char* YLowest;
    const char* YHighest;
};

class AxisLimits : public testing::TestWithParam<LimitRow>
{
};

TEST_P(AxisLimits, LieOneSpanOrOneDecadeBeyondTheDefaults)
{
    const auto& row = GetParam();
    const auto x = PermittedXRange(row.Chart, row.Defaults);
    const auto y = PermittedYRange(row.Chart, row.Defaults);
    EXPECT_EQ(NumberText(x.Lowest), row.XLowest);
    EXPECT_EQ(NumberText(x.Highest), row.XHighest);
    EXPECT_EQ(NumberText(y.Lowest), row.YLowest);
    EXPECT_EQ(NumberText(y.Highest), row.YHighest);
}

// The defaults stand as X maximum, Y maximum, X minimum, Y minimum.
INSTANTIATE_TEST_SUITE_P(
    EachChart, AxisLimits,
    testing::Values(
        LimitRow{
            "RiseOverCurrent", {0, "Current", "Temperature Rise"}, {2.5F, 40, 0, 0}, "0", "5", "0", "80"},
        LimitRow{"RiseOverSmallVoltage",
                 {0, "Voltage", "Temperature Rise"},
                 {0.3F, 80, 0, 0},
                 "0",
                 "0.6",
                 "0",
                 "160"},
        LimitRow{
            "RiseOverZeroLoad", {0, "Effective Power", "Temperature Rise"}, {0, 0, 0, 0}, "0", "1", "0", "1"},
        LimitRow{"RiseOverFrequency",
                 {0, "Frequency", "Temperature Rise"},
                 {1E6F, 80, 1E4F, 0},
                 "10",
                 "1000",
                 "0",
                 "160"},
        LimitRow{"AllowableCurrent",
                 {1, "Frequency", "Current"},
                 {1E6F, 10, 1E4F, 0.1F},
                 "10",
                 "1000",
                 "0.01",
                 "100"},
        LimitRow{"AllowableSmallPower",
                 {1, "Frequency", "Effective Power"},
                 {1E6F, 0.01F, 1E4F, 0.001F},
                 "10",
                 "1000",
                 "0.0001",
                 "0.1"},
        LimitRow{"CapacitanceOverTemperature",
                 {2, "Temperature", "Capacitance"},
                 {125, 1100, -55, 900},
                 "-235",
                 "305",
                 "700",
                 "1300"},
        LimitRow{"CapacitanceIsNeverNegative",
                 {2, "Temperature", "Capacitance"},
                 {125, 1000, -25, 100},
                 "-175",
                 "275",
                 "0",
                 "1900"},
        LimitRow{"SmallCapacitanceReadsAsTyped",
                 {2, "Temperature", "Capacitance"},
                 {85, 0.5F, -25, 0.3F},
                 "-135",
                 "195",
                 "0.1",
                 "0.7"},
        LimitRow{"ChangeMayBeNegative",
                 {2, "Temperature", "Capacitance Change"},
                 {125, 20, -55, -90},
                 "-235",
                 "305",
                 "-200",
                 "130"},
        LimitRow{"SmallChangeReadsAsTyped",
                 {2, "Temperature", "Capacitance Change"},
                 {125, 0.5F, -55, -0.3F},
                 "-235",
                 "305",
                 "-1.1",
                 "1.3"},
        LimitRow{"ChangeOfNothing",
                 {3, "DC Bias Voltage", "Capacitance Change"},
                 {16, 0, 0, 0},
                 "0",
                 "32",
                 "-1",
                 "1"},
        LimitRow{"OverDCBias",
                 {3, "DC Bias Voltage", "Capacitance"},
                 {6.3F, 1E8F, 0, 2E7F},
                 "0",
                 "12.6",
                 "0",
                 "180000000"}),
    [](const auto& row) { return row.param.Name; });

TEST(PermittedRange, HoldsItsBoundsAndNothingBeyond)
{
    const PermittedRange range{.Lowest = 10, .Highest = 1000};
    EXPECT_TRUE(range.Contains(10));
    EXPECT_TRUE(range.Contains(1000));
    EXPECT_FALSE(range.Contains(9.999F));
    EXPECT_FALSE(range.Contains(1000.1F));
    EXPECT_FALSE(range.Contains(std::numeric_limits<float>::infinity()));
    EXPECT_FALSE(range.Contains(-std::numeric_limits<float>::infinity()));
}

/// Entries for an axis from 10 to 1000 kHz, and whether they are taken.
struct RangeRow
{
    const char* Name;
    float From;
    float To;
    bool IsTaken;
};

class AxisRanges : public testing::TestWithParam<RangeRow>
{
};

TEST_P(AxisRanges, LieWithinWhatIsPermitted)
{
    const auto& row = GetParam();
    const auto refusal = RefusalOfRange("X", "Frequency", {.Lowest = 10, .Highest = 1000}, row.From, row.To);
    EXPECT_EQ(refusal.value_or("taken"),
              row.IsTaken ? "taken" : "Set X Range of Frequency from 10 to 1000 [kHz]");
}

INSTANTIATE_TEST_SUITE_P(
    Entries, AxisRanges,
    testing::Values(RangeRow{"AllThatIsPermitted", 10, 1000, true}, RangeRow{"APartOfIt", 20, 21, true},
                    RangeRow{"TooLow", 9.99F, 1000, false}, RangeRow{"TooHigh", 10, 1000.1F, false},
                    RangeRow{"NoWidth", 20, 20, false}, RangeRow{"Backwards", 21, 20, false}),
    [](const auto& row) { return row.param.Name; });

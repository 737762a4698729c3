#include "chart/layout/Divisions.h"

#include "calc/ChartKinds.h"

#include <gtest/gtest.h>

#include <string>

struct XDivisionsRow
{
    const char* Name;
    std::int16_t ChartType;
    float XMax, XMin;
    bool Rescaled;
    int Expected;
};

class XDivisions : public testing::TestWithParam<XDivisionsRow>
{
};

TEST_P(XDivisions, FollowTheChart)
{
    const auto& row = GetParam();
    EXPECT_EQ(GetXDivisions(row.ChartType, row.XMax, row.XMin, row.Rescaled), row.Expected);
}

INSTANTIATE_TEST_SUITE_P(Charts, XDivisions,
                         testing::Values(XDivisionsRow{"TemperatureRise", 0, 4, 0, false, 5},
                                         XDivisionsRow{"AllowablePowerHasNone", 1, 1e6F, 1e4F, false, 0},
                                         XDivisionsRow{"AllowablePowerRescaled", 1, 1e6F, 1e4F, true, 5},
                                         XDivisionsRow{"TemperatureMinus75To125", 2, 125, -75, false, 8},
                                         XDivisionsRow{"TemperatureRescaled", 2, 125, -75, true, 5},
                                         XDivisionsRow{"TwoAndAHalfIsTwo", 2, 62.5F, 0, false, 2},
                                         XDivisionsRow{"ThreeAndAHalfIsFour", 2, 87.5F, 0, false, 4},
                                         XDivisionsRow{"NoWidth", 2, 25, 25, false, 0},
                                         XDivisionsRow{"EndlessWidthIsBounded", 2, 3e38F, -3e38F, false,
                                                       mostDivisions},
                                         XDivisionsRow{"DCVoltage", 3, 6.3F, 0, false, 5}),
                         [](const auto& info) { return std::string(info.param.Name); });

struct YDivisionsRow
{
    const char* Name;
    std::int16_t ChartType;
    const char* XAxisName;
    const char* YAxisName;
    float YMax, YMin;
    bool Rescaled;
    int Expected;
};

class YDivisions : public testing::TestWithParam<YDivisionsRow>
{
};

TEST_P(YDivisions, FollowTheChart)
{
    const auto& row = GetParam();
    EXPECT_EQ(GetYDivisions(row.ChartType, row.XAxisName, row.YAxisName, row.YMax, row.YMin, row.Rescaled),
              row.Expected);
}

INSTANTIATE_TEST_SUITE_P(
    Charts, YDivisions,
    testing::Values(
        YDivisionsRow{"RiseOverCurrent", 0, "Current", "Temperature Rise", 80, 0, false, 10},
        YDivisionsRow{"RiseOverFrequency", 0, "Frequency", "Temperature Rise", 80, 0, false, 8},
        YDivisionsRow{"RiseRescaled", 0, "Frequency", "Temperature Rise", 80, 0, true, 5},
        YDivisionsRow{"AllowablePowerHasNone", 1, "Frequency", "Current", 10, 0.1F, false, 0},
        YDivisionsRow{"Capacitance", 2, "Temperature", "Capacitance", 1.2e7F, 0, false, 5},
        YDivisionsRow{"CapacitanceOverVoltage", 3, "DC Bias Voltage", "Capacitance", 9, 0, false, 5},
        YDivisionsRow{"Span100", 2, "Temperature", "Capacitance Change", 20, -80, false, 10},
        YDivisionsRow{"Span20", 3, "DC Bias Voltage", "Capacitance Change", 10, -10, false, 4},
        YDivisionsRow{"JustAbove20", 2, "Temperature", "Capacitance Change", 10.5F, -10, false, 2},
        YDivisionsRow{"Span12AndAHalf", 2, "Temperature", "Capacitance Change", 12.5F, 0, false, 2},
        YDivisionsRow{"Span17AndAHalf", 2, "Temperature", "Capacitance Change", 17.5F, 0, false, 4},
        YDivisionsRow{"Span25", 2, "Temperature", "Capacitance Change", 25, 0, false, 2},
        YDivisionsRow{"Span35", 2, "Temperature", "Capacitance Change", 35, 0, false, 4},
        YDivisionsRow{"ChangeRescaled", 2, "Temperature", "Capacitance Change", 20, -80, true, 5},
        YDivisionsRow{"AnyOtherName", 2, "Temperature", "Voltage", 20, -80, false, 0}),
    [](const auto& info) { return std::string(info.param.Name); });

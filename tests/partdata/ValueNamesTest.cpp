#include "partdata/ValueNames.h"

#include <gtest/gtest.h>

#include <set>
#include <string_view>

namespace
{
struct PlacedGroup
{
    const char* Name;
    ValueGroup Group;
    std::size_t First;
    std::size_t Last;
};

// The numbers are those of the file's layout in docs/part-files.md.
const PlacedGroup groups[] = {
    {"capacitance data", Values::OfCapacitance, 3, 27},
    {"power data", Values::OfPower, 28, 65},
    {"bias polynomial", Values::BiasPolynomial, 3, 8},
    {"temperature polynomial", Values::TemperaturePolynomial, 9, 14},
    {"peaked model", Values::PeakedModel, 15, 27},
    {"peak temperature", Values::PeakTemperature, 17, 19},
    {"decay below the peak", Values::DecayBelow, 20, 22},
    {"decay above the peak", Values::DecayAbove, 23, 25},
    {"current heating", Values::CurrentHeating, 28, 30},
    {"current heating over temperature", Values::CurrentHeatingOverTemperature, 32, 37},
    {"amplitude of the heating by voltage", Values::AmplitudeSurface, 38, 46},
    {"exponent of the frequency", Values::FrequencyExponentSurface, 47, 55},
    {"exponent of the voltage", Values::VoltageExponentSurface, 56, 64},
};

TEST(ValueNames, GroupsStandWhereTheFileHasThem)
{
    for (const auto& group : groups)
    {
        EXPECT_EQ(group.Group.First, group.First) << group.Name;
        EXPECT_EQ(group.Group.Last, group.Last) << group.Name;
    }
}

TEST(ValueNames, SingleValuesStandWhereTheFileHasThem)
{
    EXPECT_EQ(Value::Capacitance, 0U);
    EXPECT_EQ(Value::NominalCapacitance, 1U);
    EXPECT_EQ(Value::RatedVoltage, 2U);
    EXPECT_EQ(Value::PeakAmplitude, 15U);
    EXPECT_EQ(Value::PeakOffset, 16U);
    EXPECT_EQ(Value::ExponentBelow, 26U);
    EXPECT_EQ(Value::ExponentAbove, 27U);
    EXPECT_EQ(Value::HeatResistance, 31U);
    EXPECT_EQ(Value::UpperTemperature, 65U);
    EXPECT_EQ(DataValues, 66U);
}

TEST(ValueNames, NoTwoValuesReadAlike)
{
    std::set<std::string_view> names;
    for (const auto& value : ValueNames)
    {
        EXPECT_TRUE(names.insert(value.Name).second) << value.Name;
    }
}
} // namespace

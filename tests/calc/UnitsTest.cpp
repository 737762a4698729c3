#include "calc/Quantities.h"

#include "partdata/RunTimeError.h"

#include <gtest/gtest.h>

struct UnitRow
{
    const char* Name;
    const char* Unit;
    const char* UnitWithoutDegree;
};

class Units : public testing::TestWithParam<UnitRow>
{
};

TEST_P(Units, FollowTheName)
{
    const auto& row = GetParam();
    EXPECT_EQ(GetUnit(row.Name, defaultDegreeSign), row.Unit);
    EXPECT_EQ(GetUnit(row.Name, {}), row.UnitWithoutDegree);
}

INSTANTIATE_TEST_SUITE_P(
    Names, Units,
    testing::Values(UnitRow{"Current", "[Arms]", "[Arms]"}, UnitRow{"Voltage", "[Vrms]", "[Vrms]"},
                    UnitRow{"Apparent Power", "[VA]", "[VA]"}, UnitRow{"Effective Power", "[W]", "[W]"},
                    UnitRow{"Frequency", "[kHz]", "[kHz]"}, UnitRow{"Temperature Rise", "[°C]", "[C]"},
                    UnitRow{"Temperature", "[°C]", "[C]"}, UnitRow{"DC Bias Voltage", "[V]", "[V]"},
                    UnitRow{"Capacitance", "[pF]", "[pF]"}, UnitRow{"Capacitance Change", "[%]", "[%]"}),
    [](const auto& info)
    {
        std::string name = info.param.Name;
        std::erase(name, ' ');
        return name;
    });

TEST(UnknownUnit, IsAnErrorThatTellsTheName)
{
    try
    {
        GetUnit("current", {});
        FAIL() << "a name in small letters has no unit";
    }
    catch (const RunTimeError& error)
    {
        EXPECT_EQ(error.Number(), 5);
        EXPECT_NE(std::string(error.what()).find("current"), std::string::npos);
    }
    EXPECT_THROW(GetUnit("", {}), RunTimeError);
}

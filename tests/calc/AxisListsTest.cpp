#include "calc/AxisLists.h"
#include "tests/calc/NamedRow.h"

#include <gmock/gmock.h>

#include <vector>

namespace
{

struct Row
{
    const char* Name;
    std::int16_t ChartType;
    std::vector<std::string_view> XAxes;
    std::vector<std::string_view> YAxes;
};

class AxisListsOfChartType : public testing::TestWithParam<Row>
{
};

TEST_P(AxisListsOfChartType, NameTheQuantitiesInOrder)
{
    const auto lists = AxisListsOf(GetParam().ChartType);
    EXPECT_THAT(lists.XAxes, testing::ElementsAreArray(GetParam().XAxes));
    EXPECT_THAT(lists.YAxes, testing::ElementsAreArray(GetParam().YAxes));
}

INSTANTIATE_TEST_SUITE_P(
    All, AxisListsOfChartType,
    testing::Values(
        Row{"temperature rise over loads and frequency",
            0,
            {"Current", "Voltage", "Apparent Power", "Effective Power", "Frequency"},
            {"Temperature Rise"}},
        Row{"allowable loads over frequency",
            1,
            {"Frequency"},
            {"Current", "Voltage", "Apparent Power", "Effective Power"}},
        Row{"capacitance over temperature", 2, {"Temperature"}, {"Capacitance", "Capacitance Change"}},
        Row{"capacitance over bias", 3, {"DC Bias Voltage"}, {"Capacitance", "Capacitance Change"}},
        Row{"no chart type below the first", -1, {}, {}}, Row{"no chart type above the last", 4, {}, {}}),
    RowName<Row>);

} // namespace

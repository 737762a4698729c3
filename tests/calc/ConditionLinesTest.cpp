#include "calc/ConditionLines.h"

#include "partdata/RunTimeError.h"
#include "tests/calc/NamedRow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>

void PrintTo(const ConditionLine& line, std::ostream* out)
{
    *out << line.Name << " " << line.Value << " " << line.Unit;
}

namespace
{

/// A line with a different value in every condition, so that a mixed-up field shows.
ChartRecord LineOf(int chartType, const std::string& xAxis, const std::string& parameter)
{
    ChartRecord line;
    line.ChartType = static_cast<std::int16_t>(chartType);
    line.XAxisName = xAxis;
    line.DCBiasVoltage = 2.5F;
    line.HeatResistance = 46.93F;
    line.Frequency = 100;
    line.AmbientTemp = -55;
    line.ParameterName = parameter;
    line.ParameterValue = 0.1F;
    return line;
}

struct Row
{
    const char* Name;
    int ChartType;
    const char* XAxis;
    const char* Parameter;
    std::vector<ConditionLine> Expected;
};

class ConditionLinesOf : public testing::TestWithParam<Row>
{
};

const ConditionLine bias = {Condition::DCBias, "DC Bias Voltage", "2.5", "[V]"};
const ConditionLine resistance = {Condition::HeatResistance, "Heat Resistance", "46.93", "[C/W]"};
const ConditionLine frequency = {Condition::Frequency, "Frequency", "100", "[kHz]"};
const ConditionLine ambient = {Condition::AmbientTemperature, "Ambient Temperature", "-55", "[C]"};

TEST_P(ConditionLinesOf, TellsWhatTheChartTypeUsesInOrder)
{
    const auto& row = GetParam();
    EXPECT_THAT(ConditionLines(LineOf(row.ChartType, row.XAxis, row.Parameter)),
                testing::ElementsAreArray(row.Expected));
}

INSTANTIATE_TEST_SUITE_P(
    ChartTypes, ConditionLinesOf,
    testing::Values(
        Row{"rise over current", 0, "Current", "", {bias, resistance, frequency, ambient}},
        Row{"rise over apparent power", 0, "Apparent Power", "", {bias, resistance, frequency, ambient}},
        Row{"rise over frequency at a current",
            0,
            "Frequency",
            "Current",
            {bias, resistance, ambient, {Condition::Parameter, "Current", "0.1", "[Arms]"}}},
        Row{"rise over frequency at a voltage",
            0,
            "Frequency",
            "Voltage",
            {bias, resistance, ambient, {Condition::Parameter, "Voltage", "0.1", "[Vrms]"}}},
        Row{"rise over frequency at an effective power",
            0,
            "Frequency",
            "Effective Power",
            {bias, resistance, ambient, {Condition::Parameter, "Effective Power", "0.1", "[W]"}}},
        Row{"rise over frequency at an apparent power",
            0,
            "Frequency",
            "Apparent Power",
            {bias, resistance, ambient, {Condition::Parameter, "Apparent Power", "0.1", "[VA]"}}},
        Row{"allowable power", 1, "Frequency", "Current", {bias, resistance, ambient}},
        Row{"capacitance over temperature", 2, "Temperature", "", {bias}},
        Row{"capacitance over DC voltage", 3, "DC Bias Voltage", "", {ambient}},
        Row{"loss resistance", 4, "Frequency", "", {ambient}}),
    RowName<Row>);

TEST(ConditionLines, RefusesWhatNoChartHas)
{
    const auto numberFor = [](const ChartRecord& line)
    {
        try
        {
            ConditionLines(line);
        }
        catch (const RunTimeError& error)
        {
            return error.Number();
        }
        return 0;
    };
    EXPECT_EQ(numberFor(LineOf(5, "Frequency", "Current")), 5);
    EXPECT_EQ(numberFor(LineOf(-1, "Frequency", "Current")), 5);
    EXPECT_EQ(numberFor(LineOf(0, "Frequency", "current")), 5);
    EXPECT_EQ(numberFor(LineOf(0, "Frequency", "")), 5);
}

} // namespace

#include "calc/CurveCsv.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>

namespace
{

ChartRecord RiseOverFrequency()
{
    ChartRecord line;
    line.ChartType = 0;
    line.XAxisName = "Frequency";
    line.YAxisName = "Temperature Rise";
    line.DCBiasVoltage = 12.5F;
    line.HeatResistance = 105;
    line.AmbientTemp = 25;
    line.ParameterName = "Current";
    line.ParameterValue = 1.5F;
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        line.XData[i] = 10000 + static_cast<float>(i);
        line.YData[i] = 0.5F * static_cast<float>(i);
    }
    return line;
}

ChartRecord CapacitanceOverTemperature()
{
    ChartRecord line;
    line.ChartType = 2;
    line.XAxisName = "Temperature";
    line.YAxisName = "Capacitance";
    return line;
}

TEST(CurveCsv, TellsPartChartConditionsAndUnits)
{
    EXPECT_EQ(CsvHead(RiseOverFrequency(), "KTS31"), "# part: KTS31\n"
                                                     "# chart: Temperature Rise Characteristics\n"
                                                     "# DC Bias Voltage: 12.5 [V]\n"
                                                     "# Heat Resistance: 105 [C/W]\n"
                                                     "# Ambient Temperature: 25 [C]\n"
                                                     "# Current: 1.5 [Arms]\n"
                                                     "Frequency [Hz],Temperature Rise [°C]\n");
    EXPECT_EQ(CsvHead(CapacitanceOverTemperature(), "a\nb"),
              "# part: a\\x0Ab\n"
              "# chart: Capacitance-Temperature Characteristics\n"
              "# DC Bias Voltage: 0 [V]\n"
              "Temperature [°C],Capacitance [pF]\n");
}

TEST(CurveCsv, LeavesTheFieldOfAPointWithoutValueEmpty)
{
    EXPECT_EQ(CsvRow(10000, NoValue), "10000,\n");
    EXPECT_EQ(CsvRow(10000, 0), "10000,0\n");
}

TEST(CurveCsv, HasARowForEachPoint)
{
    const auto rows = CsvRows(RiseOverFrequency());
    EXPECT_THAT(rows, testing::StartsWith("10000,0\n10001,0.5\n"));
    EXPECT_THAT(rows, testing::EndsWith("\n10199,99.5\n"));
    EXPECT_EQ(std::ranges::count(rows, '\n'), 200);
}

TEST(CurveCsv, PutsAnEmptyLineBetweenLines)
{
    const auto rise = RiseOverFrequency();
    const auto other = CapacitanceOverTemperature();
    const std::array<NamedLine, 2> lines = {{{rise, "A"}, {other, "B"}}};
    const auto first = CsvHead(rise, "A") + CsvRows(rise);
    EXPECT_EQ(CurvesCsv(lines), first + '\n' + CsvHead(other, "B") + CsvRows(other));
    EXPECT_EQ(CurvesCsv(std::span(lines).first(1)), first);
    EXPECT_EQ(CurvesCsv({}), "");
}

} // namespace

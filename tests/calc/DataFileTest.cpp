#include "calc/DataFile.h"

#include "partdata/RunTimeError.h"

#include <gtest/gtest.h>

#include <sstream>

namespace
{

PartRecord NamedPart()
{
    PartRecord part;
    part.PartNum = {"GLOBAL-EIA", "GLOBAL-JIS", "PREVIOUS-EIA", "PREVIOUS-JIS"};
    return part;
}

ChartRecord Line(std::int16_t type, const char* x, const char* y)
{
    ChartRecord line;
    line.ChartType = type;
    line.XAxisName = x;
    line.YAxisName = y;
    line.DCBiasVoltage = 2.5F;
    line.HeatResistance = 100;
    line.Frequency = 300;
    line.AmbientTemp = 25;
    line.ParameterName = "Apparent Power";
    line.ParameterValue = 0.047F;
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        line.XData[i] = static_cast<float>(i) * 1000;
        line.YData[i] = -15;
    }
    return line;
}

/// The first lines of a file, up to and with its heading.
std::string HeadOf(const std::string& file)
{
    return file.substr(0, file.find("\r\n0.00E+00 ") + 2);
}

struct HeadRow
{
    const char* Name;
    ChartRecord Line;
    const char* Conditions;
    const char* Heading;
};

class DataFileHead : public testing::TestWithParam<HeadRow>
{
};

TEST_P(DataFileHead, HoldsTitleTypePartConditionsAndHeading)
{
    const auto& row = GetParam();
    const char* const names[] = {"Temperature Rise Characteristics", "Allowable power",
                                 "Capacitance-Temperature Characteristics",
                                 "Capacitance-DC Voltage Characteristics"};
    const std::string expected =
        std::string("!Halvex Chip Capacitor Characteristics Data Library  21.11.26\r\n") + "!ChartType-> " +
        names[row.Line.ChartType] + "\r\n!Halvex Part Number-> GLOBAL-EIA (PREVIOUS-EIA)\r\n" +
        row.Conditions + row.Heading + "\r\n";
    EXPECT_EQ(HeadOf(DataFileText(row.Line, NamedPart(), CodeView::Eia, "21.11.26")), expected);
}

INSTANTIATE_TEST_SUITE_P(
    EachChart, DataFileHead,
    testing::Values(
        HeadRow{"RiseOverLoad", Line(0, "Current", "Temperature Rise"),
                "!DC Bias Voltage-> 2.5 [V]\r\n!Heat Resistance-> 100 [C/W]\r\n!Frequency-> 300 [kHz]\r\n"
                "!Ambient Temperature-> 25 [C]\r\n",
                "Current[Arms]  Temperature Rise[C]"},
        HeadRow{"RiseOverFrequency", Line(0, "Frequency", "Temperature Rise"),
                "!DC Bias Voltage-> 2.5 [V]\r\n!Heat Resistance-> 100 [C/W]\r\n"
                "!Ambient Temperature-> 25 [C]\r\n!Apparent Power-> 0.047 [VA]\r\n",
                "Frequency[kHz]  Temperature Rise[C]"},
        HeadRow{"AllowablePower", Line(1, "Frequency", "Effective Power"),
                "!DC Bias Voltage-> 2.5 [V]\r\n!Heat Resistance-> 100 [C/W]\r\n"
                "!Ambient Temperature-> 25 [C]\r\n",
                "Frequency[kHz]  Effective Power[W]"},
        HeadRow{"CapacitanceOverTemperature", Line(2, "Temperature", "Capacitance"),
                "!DC Bias Voltage-> 2.5 [V]\r\n", "Temperature[C]  Capacitance[pF]"},
        HeadRow{"CapacitanceOverVoltage", Line(3, "DC Bias Voltage", "Capacitance Change"),
                "!Ambient Temperature-> 25 [C]\r\n", "DC Bias Voltage[V]  Capacitance Change[%]"}),
    [](const auto& row) { return row.param.Name; });

TEST(DataFile, NamesThePartInTheCodeOnDisplay)
{
    const auto file = DataFileText(Line(2, "Temperature", "Capacitance"), NamedPart(), CodeView::Jis, "");
    EXPECT_NE(file.find("!Halvex Part Number-> GLOBAL-JIS (PREVIOUS-JIS)\r\n"), std::string::npos);
}

TEST(DataFile, KeepsAPartNumberOnItsLine)
{
    auto part = NamedPart();
    part.PartNum[0] = "A\r\n1.00E+00            9.99E+99\x1B[2J";
    part.PartNum[2] = "\xB5\x90";
    const auto file = DataFileText(Line(2, "Temperature", "Capacitance"), part, CodeView::Eia, "1\n2");
    EXPECT_NE(file.find("Library  1\\x0A2\r\n"), std::string::npos);
    EXPECT_NE(
        file.find("!Halvex Part Number-> A\\x0D\\x0A1.00E+00            9.99E+99\\x1B[2J (\xB5\\x90)\r\n"),
        std::string::npos);
}

TEST(DataFile, OfNoChartTypeIsAnError)
{
    for (const std::int16_t type : {std::int16_t{-1}, std::int16_t{4}})
    {
        const auto line = Line(type, "Temperature", "Capacitance");
        EXPECT_THROW(DataFileText(line, NamedPart(), CodeView::Eia, ""), RunTimeError);
    }
}

TEST(DataFile, HasTwoHundredDataLinesAndNoTrailer)
{
    const auto file = DataFileText(Line(3, "DC Bias Voltage", "Capacitance"), NamedPart(), CodeView::Eia, "");
    const auto data = file.substr(HeadOf(file).size());
    std::istringstream lines(data);
    std::string line;
    int count = 0;
    while (std::getline(lines, line))
    {
        ASSERT_EQ(line.back(), '\r');
        ++count;
    }
    EXPECT_EQ(count, 200);
    EXPECT_TRUE(file.ends_with("\r\n1.99E+05            -1.50E+01\r\n"));
}

TEST(DataFile, WritesFrequenciesInKilohertz)
{
    const auto file = DataFileText(Line(1, "Frequency", "Current"), NamedPart(), CodeView::Eia, "");
    // Point 100 is stored as 100000 Hz.
    EXPECT_NE(file.find("\r\n1.00E+02            -1.50E+01\r\n"), std::string::npos);
    EXPECT_TRUE(file.ends_with("\r\n1.99E+02            -1.50E+01\r\n"));
}

} // namespace

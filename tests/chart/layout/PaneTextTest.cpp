#include "chart/layout/PaneText.h"
#include "tests/calc/ChartNumbers.h"

#include "partdata/RunTimeError.h"

#include <gtest/gtest.h>

static ChartRecord Line(ChartId type, const char* xAxisName, const char* yAxisName)
{
    ChartRecord line;
    line.ChartType = NumberOf(type);
    line.XAxisName = xAxisName;
    line.YAxisName = yAxisName;
    line.DCBiasVoltage = 6.3F;
    line.HeatResistance = 50;
    line.Frequency = 100;
    line.AmbientTemp = -25;
    line.ParameterName = "Apparent Power";
    line.ParameterValue = 2.5F;
    return line;
}

TEST(PaneText, OfATemperatureRiseOverALoadTellsTheFrequency)
{
    const auto line = Line(ChartId::TemperatureRise, "Current", "Temperature Rise");
    EXPECT_EQ(PaneText(line), "(6.3[V],50[°C/W],100[kHz],-25[°C])");
}

TEST(PaneText, OfATemperatureRiseOverFrequencyEndsWithTheParameter)
{
    auto line = Line(ChartId::TemperatureRise, "Frequency", "Temperature Rise");
    EXPECT_EQ(PaneText(line), "(6.3[V],50[°C/W],-25[°C],2.5[VA])");
    line.ParameterName = "Current";
    EXPECT_EQ(PaneText(line), "(6.3[V],50[°C/W],-25[°C],2.5[Arms])");
    line.ParameterName = "";
    EXPECT_THROW(PaneText(line), RunTimeError);
}

TEST(PaneText, OfAllowablePowerBeginsWithTheLargestValue)
{
    auto line = Line(ChartId::AllowablePower, "Frequency", "Current");
    line.ExtraValue = 12.34567F;
    EXPECT_EQ(PaneText(line), "(12.346[Arms],6.3[V],50[°C/W],-25[°C])");
    line.ExtraValue = 0.5F;
    EXPECT_EQ(PaneText(line), "(.5[Arms],6.3[V],50[°C/W],-25[°C])");
}

TEST(PaneText, ShowsALargestValueOfZeroAsADigit)
{
    auto line = Line(ChartId::AllowablePower, "Frequency", "Effective Power");
    for (const float zero : {0.0F, 0.0004F})
    {
        line.ExtraValue = zero;
        EXPECT_EQ(PaneText(line), "(0[W],6.3[V],50[°C/W],-25[°C])");
    }
}

TEST(PaneText, OfCapacitanceTellsTheFixedCondition)
{
    EXPECT_EQ(PaneText(Line(ChartId::CapacitanceTemperature, "Temperature", "Capacitance")), "(6.3[V] )");
    EXPECT_EQ(PaneText(Line(ChartId::CapacitanceDCVoltage, "DC Bias Voltage", "Capacitance")), "(-25[ °C] )");
}

TEST(PaneText, DoesWithoutADegreeSign)
{
    const auto line = Line(ChartId::TemperatureRise, "Current", "Temperature Rise");
    EXPECT_EQ(PaneText(line, ""), "(6.3[V],50[C/W],100[kHz],-25[C])");
}

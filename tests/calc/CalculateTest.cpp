#include "calc/Calculate.h"
#include "partdata/RunTimeError.h"
#include "tests/calc/ChartNumbers.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
PartRecord Part()
{
    PartRecord part;
    part.Tcc[0] = "X7R";
    part.Data[Value::NominalCapacitance] = 1000;
    part.Data[Value::RatedVoltage] = 10;
    part.Data[Value::TemperatureX] = 0.5F;
    part.Data[Value::Current] = 1;
    part.Data[Value::HeatResistance] = 50;
    part.Data[Value::VoltageExponent] = 2;
    part.Data[Value::UpperTemperature] = 125;
    return part;
}

/// A record whose curve fields hold what no calculation writes.
ChartRecord MarkedRecord(ChartId type)
{
    ChartRecord record;
    record.ChartType = static_cast<std::int16_t>(type);
    if (const ChartKind* kind = FindChartKind(record.ChartType))
    {
        record.XAxisName = NameOf(XAxesOf(*kind).back());
        record.YAxisName = NameOf(kind->YAxes.front());
    }
    record.ParameterName = "Current";
    record.HeatResistance = 50;
    record.AmbientTemp = 25;
    record.XData.fill(-7);
    record.YData.fill(-7);
    record.XMax = record.YMax = record.XMin = record.YMin = record.ExtraValue = -7;
    return record;
}

void ExpectMarked(const ChartRecord& record)
{
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        ASSERT_EQ(record.XData[i], -7);
        ASSERT_EQ(record.YData[i], -7);
    }
    EXPECT_EQ(record.XMax, -7);
    EXPECT_EQ(record.YMax, -7);
    EXPECT_EQ(record.XMin, -7);
    EXPECT_EQ(record.YMin, -7);
    EXPECT_EQ(record.ExtraValue, -7);
}

TEST(Calculate, LeavesTheRecordOfARefusedParameter)
{
    auto record = MarkedRecord(ChartId::TemperatureRise);
    record.ParameterValue = 9;
    const auto refusal = Calculate(Part(), record, CodeView::Eia);
    ASSERT_TRUE(refusal);
    EXPECT_FLOAT_EQ(static_cast<float>(refusal->Limit), std::sqrt(80.0F));
    EXPECT_EQ(refusal->Message, "Parameter is invalid!\r\nPlease enter a Number from 0 to 8.944");
    ExpectMarked(record);
}

TEST(Calculate, LeavesTheRecordOnAFault)
{
    auto part = Part();
    part.Data[Value::RatedVoltage] = 0;
    for (const auto type : {ChartId::TemperatureRise, ChartId::AllowablePower})
    {
        auto record = MarkedRecord(type);
        EXPECT_THROW(Calculate(part, record, CodeView::Eia), RunTimeError);
        ExpectMarked(record);
    }
}

TEST(Calculate, FaultsWithoutARatedVoltageOnEveryAxis)
{
    auto part = Part();
    part.Data[Value::RatedVoltage] = 0;
    auto record = MarkedRecord(ChartId::TemperatureRise);
    record.XAxisName = "Effective Power";
    EXPECT_THROW(Calculate(part, record, CodeView::Eia), RunTimeError);
}

TEST(Calculate, TakesTheFrequencyInKilohertz)
{
    auto part = Part();
    part.Data[Value::CurrentPerF] = 1000;
    part.Data[Value::Current] = 0;
    auto record = MarkedRecord(ChartId::TemperatureRise);
    record.XAxisName = "Current";
    record.Frequency = 100;
    ASSERT_FALSE(Calculate(part, record, CodeView::Eia));
    // kI = 1000 / 100000 Hz
    EXPECT_FLOAT_EQ(record.XData.back(), static_cast<float>(std::sqrt(8000.0)));
    EXPECT_EQ(record.YData.back(), 80);
    EXPECT_EQ(record.XMax, 90);
    EXPECT_EQ(record.YMax, 100);
    EXPECT_EQ(record.ExtraValue, 0);
}

TEST(Calculate, StoresTheLargestAllowableLoad)
{
    auto record = MarkedRecord(ChartId::AllowablePower);
    record.AmbientTemp = 121;
    ASSERT_FALSE(Calculate(Part(), record, CodeView::Eia));
    EXPECT_EQ(record.ExtraValue, 2);
    EXPECT_EQ(record.YMax, 10);
    EXPECT_EQ(record.YMin, 1);
}

TEST(Calculate, LeavesTheRecordOfACapacitanceOnAFault)
{
    auto part = Part();
    part.Data[Value::TemperatureX] = HUGE_VALF;
    auto record = MarkedRecord(ChartId::CapacitanceTemperature);
    record.YAxisName = "Capacitance";
    EXPECT_THROW(Calculate(part, record, CodeView::Eia), RunTimeError);
    ExpectMarked(record);
}

TEST(Calculate, LeavesThePointsOfAnUnlistedCharacteristic)
{
    auto part = Part();
    part.Tcc[0] = "C0G";
    auto record = MarkedRecord(ChartId::CapacitanceDCVoltage);
    record.YAxisName = "Capacitance Change";
    Calculate(part, record, CodeView::Eia);
    EXPECT_EQ(record.XData.front(), -7);
    EXPECT_EQ(record.YData.back(), -7);
    EXPECT_EQ(record.XMax, 10);
    EXPECT_EQ(record.YMax, 10);
}

/// Number of the error that a record of these names ends with.
int ErrorOfNames(ChartId type, const char* xAxis, const char* yAxis, const char* parameter = "Current")
{
    auto record = MarkedRecord(type);
    record.XAxisName = xAxis;
    record.YAxisName = yAxis;
    record.ParameterName = parameter;
    record.Frequency = 100;
    try
    {
        Calculate(Part(), record, CodeView::Eia);
        return 0;
    }
    catch (const RunTimeError& error)
    {
        ExpectMarked(record);
        return error.Number();
    }
}

TEST(Calculate, RefusesNamesThatNoChartBears)
{
    EXPECT_EQ(ErrorOfNames(ChartId::TemperatureRise, "Current", "Temperature Rise"), 0);
    EXPECT_EQ(ErrorOfNames(ChartId::TemperatureRise, "Curent", "Temperature Rise"), 5);
    EXPECT_EQ(ErrorOfNames(ChartId::TemperatureRise, "Temperature", "Temperature Rise"), 5);
    EXPECT_EQ(ErrorOfNames(ChartId::TemperatureRise, "Frequency", "Temperature Rise", "current"), 5);
    EXPECT_EQ(ErrorOfNames(ChartId::AllowablePower, "Frequency", "Capacitance"), 5);
    EXPECT_EQ(ErrorOfNames(ChartId::CapacitanceTemperature, "Temperature", "Capacity"), 5);
    EXPECT_EQ(ErrorOfNames(static_cast<ChartId>(5), "Frequency", "Current"), 5);
}
} // namespace

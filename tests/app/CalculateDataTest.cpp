/// The calculations applied to the line that is being plotted.

#include "app/CalculateData.h"
#include "app/mdlPublic.h"
#include "partdata/RunTimeError.h"

#include <gtest/gtest.h>

namespace
{
/// A range of one part, with everything that a curve needs, and an empty store.
class CalculateData : public testing::Test
{
protected:
    CalculateData()
    {
        PartRecord part;
        part.Tcc[0] = "X7R";
        part.Data[1] = 1000;
        part.Data[2] = 10;
        part.Data[14] = 0.5F;
        part.Data[29] = 1;
        part.Data[31] = 50;
        part.Data[64] = 2;
        part.Data[65] = 125;
        mdlPublic.Parts.PartData = {part};
    }
    ~CalculateData() override { mdlPublic = {}; }

    static ChartRecord RiseOverFrequency(float current)
    {
        ChartRecord line;
        line.XAxisName = "Frequency";
        line.YAxisName = "Temperature Rise";
        line.HeatResistance = 50;
        line.AmbientTemp = 25;
        line.ParameterName = "Current";
        line.ParameterValue = current;
        return line;
    }

    static ChartRecord ChangeOverTemperature()
    {
        ChartRecord line;
        line.ChartType = 2;
        line.XAxisName = "Temperature";
        line.YAxisName = "Capacitance Change";
        return line;
    }

    ChartStore& store = mdlPublic.Charts;
};

TEST_F(CalculateData, WritesTheCurveOfARiseIntoTheWorkingRecord)
{
    store.Write(RiseOverFrequency(2));
    EXPECT_FALSE(CalculateDataT(0));
    EXPECT_EQ(store.CurrentChart(), 0);
    EXPECT_EQ(store.WorkingRecord().ParameterValue, 2);
    EXPECT_EQ(store.WorkingRecord().XMax, 1e6F);
    // kI is 1 °C/A².
    EXPECT_FLOAT_EQ(store.WorkingRecord().YData[100], 4);
}

TEST_F(CalculateData, LeavesTheRecordOfARefusedParameter)
{
    store.Write(RiseOverFrequency(9));
    const auto refusal = CalculateDataT(0);
    ASSERT_TRUE(refusal);
    EXPECT_FLOAT_EQ(refusal->Shown, 8.944F);
    EXPECT_EQ(store.WorkingRecord().ParameterValue, 9);
    EXPECT_EQ(store.WorkingRecord().XMax, 0);
}

TEST_F(CalculateData, WritesACapacitanceInTheNamingOnDisplay)
{
    store.Write(ChangeOverTemperature());
    CalculateDataS(0);
    EXPECT_EQ(store.WorkingRecord().XData[0], -55);
    // 0.5 % a degree, from 25 °C; from 20 °C in the other naming.
    EXPECT_FLOAT_EQ(store.WorkingRecord().YData[0], -40);
    mdlPublic.Marks.mnuViewCode = [](int index) { return index == 1; };
    CalculateDataS(0);
    EXPECT_FLOAT_EQ(store.WorkingRecord().YData[0], static_cast<float>((600 - 975) / 9.75));
}

TEST_F(CalculateData, DoesNothingForTheChartTypesOfTheOther)
{
    store.Write(RiseOverFrequency(2));
    CalculateDataS(0);
    EXPECT_EQ(store.WorkingRecord().XMax, 0);
    store.Write(ChangeOverTemperature());
    EXPECT_FALSE(CalculateDataT(0));
    EXPECT_EQ(store.WorkingRecord().XMax, 0);
}

TEST_F(CalculateData, LeavesStoreAndRecordOnAFault)
{
    mdlPublic.Parts.PartData[0].Data[31] = 0;
    store.Write(RiseOverFrequency(2));
    EXPECT_THROW(CalculateDataT(0), RunTimeError);
    EXPECT_EQ(store.CurrentChart(), 0);
    EXPECT_EQ(store.WorkingRecord().ParameterValue, 2);
    EXPECT_EQ(store.WorkingRecord().XMax, 0);
}
} // namespace

#include "chart/layout/LossLines.h"

#include "chart/layout/Mapping.h"
#include "files/PartLoading.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace
{
const PartTable& Parts()
{
    static const PartTable parts = LoadPartData(SAMPLE_RANGE);
    return parts;
}

ViewedLine HeatingLine(std::string_view name, float ambientC)
{
    ViewedLine line;
    line.Line.ChartType = 1;
    line.Line.XAxisName = "Frequency";
    line.Line.YAxisName = "Voltage";
    line.Line.DCBiasVoltage = 5;
    line.Line.HeatResistance = 40;
    line.Line.AmbientTemp = ambientC;
    line.Line.PartDataIndex = *Parts().PartIndex[0].Find(name);
    line.Part = Parts().PartData[static_cast<std::size_t>(line.Line.PartDataIndex)];
    line.PartNumber = name;
    return line;
}

TEST(LossLines, AreThereForHeatingCharts)
{
    EXPECT_TRUE(HasLossLines({0, "Current", "Temperature Rise"}));
    EXPECT_TRUE(HasLossLines({1, "Frequency", "Current"}));
    EXPECT_FALSE(HasLossLines({2, "Temperature", "Capacitance"}));
    EXPECT_FALSE(HasLossLines({3, "DC Bias Voltage", "Capacitance"}));
    EXPECT_FALSE(HasLossLines({9, "", ""}));
}

TEST(LossLines, AreThoseOfTheSamePartsAtTheirTemperatures)
{
    const auto lines = LossLinesOf(
        {HeatingLine("KTS31NR71A226KA01", 20), HeatingLine("KTS31NR71A226KA01", 60)}, CodeView::Eia);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(KeyOf(lines[0].Line), (ChartKey{4, "Frequency", "Loss Resistance"}));
    EXPECT_EQ(lines[0].PartNumber, "KTS31NR71A226KA01");
    EXPECT_EQ(lines[0].Line.AmbientTemp, 20);
    EXPECT_EQ(lines[1].Line.AmbientTemp, 60);
    // Neither bias nor heat resistance bears on it.
    EXPECT_EQ(lines[0].Line.DCBiasVoltage, 0);
    EXPECT_EQ(lines[0].Line.HeatResistance, 0);
    EXPECT_FLOAT_EQ(lines[0].Line.YData.front(), 22.6177095F);
    EXPECT_FLOAT_EQ(lines[0].Line.YData.back(), 2.29008605F);
    EXPECT_LT(lines[1].Line.YData.front(), lines[0].Line.YData.front());
}

TEST(LossLines, HaveNoValuesWherePartsHaveNone)
{
    auto none = HeatingLine("KTS31NR71A226KA01", 20);
    none.Part.Data[Value::CurrentPerF] = 0;
    none.Part.Data[Value::Current] = -1;
    auto faulty = HeatingLine("KTS31NR71A226KA01", 20);
    faulty.Part.Data[Value::HeatResistance] = 0;
    const auto lines = LossLinesOf({none, HeatingLine("KTS188R71H104KA01", 20), faulty}, CodeView::Eia);
    for (const std::size_t i : {0U, 2U})
    {
        EXPECT_TRUE(std::ranges::all_of(lines[i].Line.YData, [](float y) { return std::isnan(y); })) << i;
        EXPECT_EQ(lines[i].Line.XData.front(), 1e4F);
        EXPECT_EQ(lines[i].Line.YMax, lines[1].Line.YMax);
        EXPECT_EQ(lines[i].Line.YMin, lines[1].Line.YMin);
    }
    EXPECT_EQ(lines[1].Line.YMax, 10000);
    EXPECT_EQ(lines[1].Line.YMin, 10);
}

TEST(LossLines, AreDrawnWithAGapWhereTheyHaveNoValue)
{
    // 2E5/f - 10 + 2E-5·f is not positive from 21 to 479 kHz.
    auto gap = HeatingLine("KTS31NR71A226KA01", 20);
    gap.Part.Data[Value::CurrentPerF] = 2e5F;
    gap.Part.Data[Value::Current] = -10;
    gap.Part.Data[Value::CurrentF] = 2e-5F;
    const auto line = LossLinesOf({gap}, CodeView::Eia).front();
    for (const float xMin : {1e4F, 1.2e4F})
    {
        const AxisRange range{.XMax = 1e6F, .YMax = line.Line.YMax, .XMin = xMin, .YMin = line.Line.YMin};
        const auto runs = ViewedCurve(line, {.Chart = KeyOf(line.Line), .Range = range}, CodeView::Eia);
        ASSERT_EQ(runs.size(), 2U) << xMin;
        const AxisMapping x(AxisKind::Logarithmic, xMin, 1e6F);
        EXPECT_LE(runs[0].back().X, x.Position(20871.3)) << xMin;
        EXPECT_GE(runs[1].front().X, x.Position(479128)) << xMin;
    }
}
} // namespace

/// Every chart that the range offers can be plotted: all chart types, axes and parameters, without bias and
/// at the highest bias, cool and at the highest temperature.

#include "calc/Calculate.h"
#include "tests/calc/ChartNumbers.h"
#include "tests/samplerange/Range.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

static void ExpectDrawable(const PartRecord& part, const ChartRecord& record)
{
    const auto finite = [](float value) { return std::isfinite(value); };
    EXPECT_TRUE(std::ranges::all_of(record.XData, finite) && std::ranges::all_of(record.YData, finite))
        << part.PartNum[0] << ' ' << record.XAxisName << ' ' << record.YAxisName;
    EXPECT_LT(record.XMin, record.XMax) << part.PartNum[0];
    EXPECT_LT(record.YMin, record.YMax) << part.PartNum[0];
    EXPECT_LT(record.XData.front(), record.XData.back()) << part.PartNum[0];
}

static ChartRecord PowerChart(ChartId type, const PartRecord& part, float biasVolts, float ambientC)
{
    ChartRecord record;
    record.ChartType = NumberOf(type);
    record.XAxisName = "Frequency";
    record.YAxisName = "Temperature Rise";
    record.DCBiasVoltage = biasVolts;
    record.HeatResistance = part.Data[Value::HeatResistance];
    record.AmbientTemp = ambientC;
    return record;
}

TEST(EveryPart, PlotsItsCapacitance)
{
    for (const PartRecord* part : PartsWithCapacitance())
    {
        const auto [low, high] = OperatingRange(*part);
        for (const auto view : {CodeView::Eia, CodeView::Jis})
        {
            for (const auto axis : {"Capacitance", "Capacitance Change"})
            {
                ExpectDrawable(*part, OverTemperature(*part, axis, 0, view));
                ExpectDrawable(*part, OverTemperature(*part, axis, part->Data[Value::RatedVoltage], view));
                ExpectDrawable(*part, OverBias(*part, axis, low, view));
                ExpectDrawable(*part, OverBias(*part, axis, 20, view));
                ExpectDrawable(*part, OverBias(*part, axis, high, view));
            }
        }
    }
}

TEST(EveryPart, PlotsItsTemperatureRiseOverLoad)
{
    for (const PartRecord* part : PartsWithPower())
    {
        for (const float bias : {0.0F, part->Data[Value::RatedVoltage]})
        {
            for (const float ambient : {20.0F, part->Data[Value::UpperTemperature]})
            {
                for (const Quantity load : Parameters)
                {
                    const auto axis = NameOf(load);
                    auto record = PowerChart(ChartId::TemperatureRise, *part, bias, ambient);
                    record.XAxisName = axis;
                    record.Frequency = 100;
                    EXPECT_FALSE(Calculate(*part, record, CodeView::Eia).has_value());
                    ExpectDrawable(*part, record);
                    EXPECT_LE(*std::ranges::max_element(record.YData), 80.001F) << part->PartNum[0];
                }
            }
        }
    }
}

TEST(EveryPart, PlotsItsTemperatureRiseOverFrequencyUpToTheShownLimit)
{
    for (const PartRecord* part : PartsWithPower())
    {
        for (const float bias : {0.0F, part->Data[Value::RatedVoltage]})
        {
            for (const float ambient : {20.0F, part->Data[Value::UpperTemperature]})
            {
                for (const Quantity load : Parameters)
                {
                    const auto parameter = NameOf(load);
                    auto record = PowerChart(ChartId::TemperatureRise, *part, bias, ambient);
                    record.ParameterName = parameter;
                    record.ParameterValue = 1e30F;
                    const auto refusal = Calculate(*part, record, CodeView::Eia);
                    ASSERT_TRUE(refusal.has_value()) << part->PartNum[0];
                    EXPECT_GT(refusal->Shown, 0) << part->PartNum[0] << ' ' << parameter;
                    record.ParameterValue = refusal->Shown;
                    EXPECT_FALSE(Calculate(*part, record, CodeView::Eia).has_value()) << part->PartNum[0];
                    ExpectDrawable(*part, record);
                }
            }
        }
    }
}

TEST(EveryPart, PlotsItsAllowablePower)
{
    for (const PartRecord* part : PartsWithPower())
    {
        for (const float bias : {0.0F, BiasOf(*part, 0.99F)})
        {
            for (const float ambient : {20.0F, part->Data[Value::UpperTemperature]})
            {
                for (const Quantity load : Parameters)
                {
                    const auto axis = NameOf(load);
                    auto record = PowerChart(ChartId::AllowablePower, *part, bias, ambient);
                    record.YAxisName = axis;
                    EXPECT_FALSE(Calculate(*part, record, CodeView::Eia).has_value());
                    ExpectDrawable(*part, record);
                    // At the highest temperature no rise is permitted; below it every part bears a load.
                    EXPECT_EQ(record.ExtraValue > 0, ambient == 20.0F) << part->PartNum[0] << ' ' << axis;
                }
            }
        }
    }
}

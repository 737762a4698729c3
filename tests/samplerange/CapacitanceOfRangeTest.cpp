/// Every part of the range keeps to its temperature class and falls under bias as real parts do.

#include "tests/samplerange/Range.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <tuple>

static constexpr std::string_view Change = "Capacitance Change";
static constexpr std::string_view Capacitance = "Capacitance";
static constexpr std::array BothViews = {CodeView::Eia, CodeView::Jis};

/// A class of the temperature characteristic, in percent of the capacitance at 25 °C.
struct TemperatureClass
{
    std::string_view Tcc;
    float Lowest;
    float Highest;
};

class TemperatureClassOfRange : public testing::TestWithParam<TemperatureClass>
{
};

TEST_P(TemperatureClassOfRange, HoldsWithoutBias)
{
    for (const PartRecord* part : PartsWithCapacitance())
    {
        if (part->Tcc[0] != GetParam().Tcc)
        {
            continue;
        }
        const auto chart = OverTemperature(*part, Change, 0);
        EXPECT_EQ(chart.XData.front(), OperatingRange(*part).MinC);
        EXPECT_FLOAT_EQ(chart.XData.back(), OperatingRange(*part).MaxC);
        EXPECT_GE(*std::ranges::min_element(chart.YData), GetParam().Lowest) << part->PartNum[0];
        EXPECT_LE(*std::ranges::max_element(chart.YData), GetParam().Highest) << part->PartNum[0];
    }
}

INSTANTIATE_TEST_SUITE_P(Capacitance, TemperatureClassOfRange,
                         testing::Values(TemperatureClass{"X7R", -15, 15}, TemperatureClass{"X5R", -15, 15},
                                         TemperatureClass{"Y5V", -82, 22}),
                         [](const auto& row) { return std::string(row.param.Tcc); });

TEST(Capacitance, IsNominalAtTheReferenceTemperatureWithoutBias)
{
    for (const PartRecord* part : PartsWithCapacitance())
    {
        EXPECT_NEAR(OverBias(*part, Change, 25, CodeView::Eia).YData[0], 0, 1e-4) << part->PartNum[0];
        EXPECT_NEAR(OverBias(*part, Change, 20, CodeView::Jis).YData[0], 0, 1e-4) << part->PartNum[0];
    }
}

TEST(Capacitance, FallsStrictlyAtTheReferenceTemperature)
{
    for (const PartRecord* part : PartsWithCapacitance())
    {
        const auto chart = OverBias(*part, Change, 25);
        EXPECT_EQ(std::ranges::adjacent_find(chart.YData, std::less_equal<>()), chart.YData.end())
            << part->PartNum[0];
    }
}

TEST(Capacitance, NeverRisesWithBiasAtAnyTemperature)
{
    for (const PartRecord* part : PartsWithCapacitance())
    {
        const auto [low, high] = OperatingRange(*part);
        for (const float ambient : {low, -25.0F, -5.0F, 15.0F, 20.0F, 25.0F, 45.0F, 65.0F, high})
        {
            for (const auto view : BothViews)
            {
                for (const auto axis : {Change, Capacitance})
                {
                    const auto chart = OverBias(*part, axis, ambient, view);
                    EXPECT_EQ(std::ranges::adjacent_find(chart.YData, std::less<>()), chart.YData.end())
                        << part->PartNum[0] << " at " << ambient;
                }
            }
        }
    }
}

TEST(Capacitance, KeepsMoreThanATwentiethEverywhere)
{
    for (const PartRecord* part : PartsWithCapacitance())
    {
        for (const float share : {0.0F, 0.5F, 1.0F})
        {
            for (const auto view : BothViews)
            {
                const auto chart = OverTemperature(*part, Change, BiasOf(*part, share), view);
                EXPECT_GE(*std::ranges::min_element(chart.YData), -95) << part->PartNum[0];
            }
        }
    }
}

TEST(Capacitance, AtRatedVoltageIsWhatTheBiasPolynomialSays)
{
    for (const PartRecord* part : PartsWithCapacitance())
    {
        const double bias = BiasPolynomial(*part, part->Data[Value::RatedVoltage]);
        EXPECT_LT(bias, 0) << part->PartNum[0];
        EXPECT_GT(bias, -86) << part->PartNum[0];
        if (!IsPeaked(*part))
        {
            EXPECT_NEAR(OverBias(*part, Change, 25).YData.back(), bias, 1e-3) << part->PartNum[0];
        }
    }
}

TEST(Capacitance, OfTheFullestPartsLosesSixtyToEightyFivePercent)
{
    std::map<std::tuple<std::string_view, std::string_view, float>, const PartRecord*> fullest;
    for (const PartRecord* part : PartsWithCapacitance())
    {
        auto& most = fullest[{part->SizeCode[0], part->Tcc[0], part->Data[Value::RatedVoltage]}];
        if (most == nullptr || part->Data[Value::Capacitance] > most->Data[Value::Capacitance])
        {
            most = part;
        }
    }
    for (const auto& [family, part] : fullest)
    {
        const auto loss = -OverBias(*part, Change, 25).YData.back();
        EXPECT_GE(loss, 60) << part->PartNum[0];
        EXPECT_LE(loss, 85) << part->PartNum[0];
    }
}

TEST(Capacitance, OfSmallValuesInLargeCasesLosesAFewPercent)
{
    std::map<std::tuple<std::string_view, float>, float> highest;
    for (const PartRecord* part : PartsWithCapacitance())
    {
        auto& most = highest[{part->SizeCode[0], part->Data[Value::RatedVoltage]}];
        most = part->Tcc[0] == "X7R" ? std::max(most, part->Data[Value::Capacitance]) : most;
    }
    int judged = 0;
    for (const PartRecord* part : PartsWithCapacitance())
    {
        const bool large = part->SizeCode[0] >= "1206" && part->Tcc[0] == "X7R";
        if (large && part->Data[Value::Capacitance] <
                         highest.at({part->SizeCode[0], part->Data[Value::RatedVoltage]}) / 200)
        {
            EXPECT_LT(-OverBias(*part, Change, 25).YData.back(), 10) << part->PartNum[0];
            ++judged;
        }
    }
    EXPECT_GT(judged, 20);
}

/// Measured examples of parts on the market, in µF.
struct Example
{
    const char* Name;
    std::string_view Size;
    float Microfarads;
    float RatedVolts;
    float BiasVolts;
    double MeasuredMicrofarads;
};

class ExampleOfRange : public testing::TestWithParam<Example>
{
};

TEST_P(ExampleOfRange, IsMetWithinATenth)
{
    const auto& example = GetParam();
    const auto& part = PartOf(example.Size, "X5R", example.Microfarads * 1e6F, example.RatedVolts);
    // One point of the temperature chart lies within half a degree of 25 °C.
    const auto chart = OverTemperature(part, Capacitance, example.BiasVolts);
    const auto nearest = std::ranges::min_element(chart.XData, {}, [](float x) { return std::abs(x - 25); });
    const auto picofarads = chart.YData[static_cast<std::size_t>(nearest - chart.XData.begin())];
    EXPECT_NEAR(picofarads / 1e6, example.MeasuredMicrofarads, example.MeasuredMicrofarads * 0.1);
}

INSTANTIATE_TEST_SUITE_P(Capacitance, ExampleOfRange,
                         testing::Values(Example{"TenMicrofaradsAt3V3", "0805", 10, 16, 3.3F, 7.5},
                                         Example{"TenMicrofaradsAt6V", "0805", 10, 16, 6, 5.5},
                                         Example{"TenMicrofaradsAt12V", "0805", 10, 16, 12, 2.7},
                                         Example{"FourPointSevenMicrofaradsAt10V", "0603", 4.7F, 25, 10,
                                                 1.3}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(Capacitance, OfY5VPeaksBetweenTenAndTwentyFiveDegrees)
{
    for (const PartRecord* part : PartsWithCapacitance())
    {
        if (part->Tcc[0] == "Y5V")
        {
            const auto chart = OverTemperature(*part, Change, 0);
            const auto peak = std::ranges::max_element(chart.YData) - chart.YData.begin();
            EXPECT_GE(chart.XData[static_cast<std::size_t>(peak)], 10) << part->PartNum[0];
            EXPECT_LE(chart.XData[static_cast<std::size_t>(peak)], 25) << part->PartNum[0];
        }
    }
}

TEST(Capacitance, OfX7RDipsAtBothEndsAndOfX5RTowardsTheHot)
{
    for (const PartRecord* part : PartsWithCapacitance())
    {
        if (part->Tcc[0] == "Y5V")
        {
            continue;
        }
        const auto chart = OverTemperature(*part, Change, 0);
        EXPECT_LT(chart.YData.back(), -5) << part->PartNum[0];
        EXPECT_LT(chart.YData.front(), -5) << part->PartNum[0];
        EXPECT_TRUE(std::is_sorted(chart.YData.begin() + 150, chart.YData.end(), std::greater<>()))
            << part->PartNum[0];
    }
}

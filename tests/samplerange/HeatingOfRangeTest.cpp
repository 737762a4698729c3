/// Every part of the range heats as its loss factor, case and capacitance demand.

#include "calc/Calculate.h"
#include "tests/calc/ChartNumbers.h"
#include "tests/samplerange/Range.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <map>
#include <numbers>

/// Temperature rise over current or voltage, with the part's own heat resistance.
static ChartRecord RiseOver(std::string_view xAxis, const PartRecord& part, float biasVolts, float ambientC,
                            float kilohertz)
{
    ChartRecord record;
    record.ChartType = NumberOf(ChartId::TemperatureRise);
    record.XAxisName = xAxis;
    record.YAxisName = "Temperature Rise";
    record.DCBiasVoltage = biasVolts;
    record.HeatResistance = part.Data[Value::HeatResistance];
    record.Frequency = kilohertz;
    record.AmbientTemp = ambientC;
    EXPECT_FALSE(Calculate(part, record, CodeView::Eia).has_value());
    return record;
}

/// Exponent of a curve that is a power of X.
static double ExponentOf(const ChartRecord& chart)
{
    return std::log(chart.YData[199] / chart.YData[100]) / std::log(chart.XData[199] / chart.XData[100]);
}

/// Load of 20 °C rise on a curve that is a power of X, also beyond its end.
static double LoadOfRise(const ChartRecord& chart)
{
    return chart.XData[199] * std::pow(20 / chart.YData[199], 1 / ExponentOf(chart));
}

TEST(Heating, FollowsTheLossFactorAndAFewMilliohmsAt100kHz)
{
    const std::map<std::string_view, std::pair<double, double>> lossFactors = {
        {"X7R", {0.02, 0.035}}, {"X5R", {0.03, 0.10}}, {"Y5V", {0.05, 0.12}}};
    for (const PartRecord* part : PartsWithPower())
    {
        const auto chart = RiseOver("Current", *part, 0, 20, 100);
        const double ohms =
            chart.YData[199] / std::pow(chart.XData[199], 2) / part->Data[Value::HeatResistance];
        const double reactance =
            1 / (2 * std::numbers::pi * 1e5 * part->Data[Value::NominalCapacitance] * 1e-12);
        const auto [least, most] = lossFactors.at(part->Tcc[0]);
        EXPECT_GT(ohms, least * reactance + 0.0005) << part->PartNum[0];
        EXPECT_LT(ohms, most * reactance + 0.008) << part->PartNum[0];
    }
}

TEST(Heating, SpreadsBetterInLargerCases)
{
    const std::map<std::string_view, float> expected = {
        {"0402", 350}, {"0603", 220}, {"0805", 150}, {"1206", 105}, {"1210", 75}, {"1812", 55}, {"2220", 40}};
    for (const PartRecord* part : PartsWithPower())
    {
        EXPECT_EQ(part->Data[Value::HeatResistance], expected.at(part->SizeCode[0])) << part->PartNum[0];
    }
}

TEST(Heating, GrowsNearlyWithTheSquareOfTheVoltage)
{
    for (const PartRecord* part : PartsWithPower())
    {
        for (const float share : {0.0F, 0.5F, 1.0F})
        {
            for (const float ambient : {20.0F, part->Data[Value::UpperTemperature]})
            {
                const auto chart = RiseOver("Voltage", *part, BiasOf(*part, share), ambient, 100);
                EXPECT_GE(ExponentOf(chart), 1.8) << part->PartNum[0];
                EXPECT_LE(ExponentOf(chart), 2.4) << part->PartNum[0];
            }
        }
    }
}

TEST(Heating, IsLimitedByTheHighestOperatingTemperature)
{
    for (const PartRecord* part : PartsWithPower())
    {
        EXPECT_EQ(part->Data[Value::UpperTemperature], part->Tcc[0] == "X7R" ? 125 : 85) << part->PartNum[0];
    }
}

static constexpr std::array Kilohertz = {10.0F, 18.0F, 32.0F, 56.0F, 100.0F, 180.0F, 320.0F, 560.0F, 1000.0F};

/// Conditions under which the laws of voltage and current are compared.
struct Load
{
    float BiasVolts;
    float AmbientC;
};

/// Voltage and current of 20 °C rise: their ratio times 2πfC is 1 when both laws agree fully.
static void ExpectAgreement(const PartRecord& part, const Load& load,
                            std::initializer_list<double> picofarads)
{
    for (const float kilohertz : Kilohertz)
    {
        const double volts = LoadOfRise(RiseOver("Voltage", part, load.BiasVolts, load.AmbientC, kilohertz));
        const double amperes =
            LoadOfRise(RiseOver("Current", part, load.BiasVolts, load.AmbientC, kilohertz));
        for (const double capacitance : picofarads)
        {
            const double susceptance = 2 * std::numbers::pi * kilohertz * 1e3 * capacitance * 1e-12;
            const double agreement = volts / amperes * susceptance;
            EXPECT_GT(agreement, 0.7) << part.PartNum[0] << " at " << kilohertz << " kHz, " << load.BiasVolts;
            EXPECT_LT(agreement, 1.3) << part.PartNum[0] << " at " << kilohertz << " kHz, " << load.BiasVolts;
        }
    }
}

TEST(Heating, ByVoltageAndByCurrentAgreeWithoutBias)
{
    for (const PartRecord* part : PartsWithPower())
    {
        ExpectAgreement(*part, {.BiasVolts = 0, .AmbientC = 20}, {part->Data[Value::NominalCapacitance]});
    }
}

class AgreementUnderBias : public testing::TestWithParam<float>
{
};

TEST_P(AgreementUnderBias, HoldsForTheCapacitanceOnTheChartAndForThePolynomial)
{
    const float ambient = GetParam();
    for (const PartRecord* part : PartsWithPower())
    {
        if (BiasPolynomial(*part, part->Data[Value::RatedVoltage]) == 0)
        {
            continue; // nothing measured under bias
        }
        const auto chart = OverBias(*part, "Capacitance", ambient);
        for (const std::size_t point : {0U, 25U, 50U, 100U, 150U, 199U})
        {
            const float bias = std::min(chart.XData[point], part->Data[Value::RatedVoltage]);
            const double byPolynomial =
                part->Data[Value::NominalCapacitance] * (1 + BiasPolynomial(*part, bias) / 100);
            ExpectAgreement(*part, {bias, ambient}, {chart.YData[point], byPolynomial});
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Heating, AgreementUnderBias, testing::Values(20.0F, 25.0F),
                         [](const auto& row) { return "At" + std::to_string(std::lround(row.param)); });

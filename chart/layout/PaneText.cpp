#include "chart/layout/PaneText.h"

#include "calc/NumberText.h"

#include <algorithm>

std::string LargestValueText(float value)
{
    const auto text = FormatNumber(value, NumberFormat::PaneValue);
    const bool anyDigit = std::ranges::any_of(text, [](char c) { return c >= '0' && c <= '9'; });
    return anyDigit ? text : "0";
}

/// Bias and heat resistance, as all power charts have them.
static std::string BiasAndResistance(const ChartRecord& line, const std::string& degreeSign)
{
    return NumberText(line.DCBiasVoltage) + "[V]," + NumberText(line.HeatResistance) + '[' + degreeSign +
           "C/W],";
}

static std::string Conditions(const ChartRecord& line, const std::string& degreeSign)
{
    const auto ambient = NumberText(line.AmbientTemp) + '[' + degreeSign + "C]";
    switch (static_cast<ChartType>(line.ChartType))
    {
    case ChartType::TemperatureRise:
        if (line.XAxisName == "Frequency")
        {
            const auto unit = GetUnit(line.ParameterName, degreeSign);
            return BiasAndResistance(line, degreeSign) + ambient + ',' + NumberText(line.ParameterValue) +
                   unit;
        }
        return BiasAndResistance(line, degreeSign) + NumberText(line.Frequency) + "[kHz]," + ambient;
    case ChartType::AllowablePower:
        return LargestValueText(line.ExtraValue) + GetUnit(line.YAxisName, degreeSign) + ',' +
               BiasAndResistance(line, degreeSign) + ambient;
    case ChartType::CapacitanceTemperature:
        return NumberText(line.DCBiasVoltage) + "[V] ";
    case ChartType::CapacitanceDCVoltage:
        return NumberText(line.AmbientTemp) + "[ " + degreeSign + "C] ";
    }
    return {};
}

std::string PaneText(const ChartRecord& line, std::string_view degreeSign)
{
    return '(' + Conditions(line, std::string(degreeSign)) + ')';
}

#include "chart/drawing/PaneText.h"

#include "calc/NumberText.h"

#include <algorithm>

static QString Number(float value)
{
    return QString::fromStdString(NumberText(value));
}

QString LargestValueText(float value)
{
    const auto text = FormatNumber(value, NumberFormat::PaneValue);
    const bool anyDigit = std::ranges::any_of(text, [](char c) { return c >= '0' && c <= '9'; });
    return anyDigit ? QString::fromStdString(text) : QStringLiteral("0");
}

/// Bias and heat resistance, as all power charts have them.
static QString BiasAndResistance(const ChartRecord& line, const QString& degreeSign)
{
    return Number(line.DCBiasVoltage) + "[V]," + Number(line.HeatResistance) + '[' + degreeSign + "C/W],";
}

static QString Conditions(const ChartRecord& line, const QString& degreeSign)
{
    const auto ambient = Number(line.AmbientTemp) + '[' + degreeSign + "C]";
    switch (static_cast<ChartType>(line.ChartType))
    {
    case ChartType::TemperatureRise:
        if (line.XAxisName == "Frequency")
        {
            const auto unit = GetUnit(QString::fromStdString(line.ParameterName), degreeSign);
            return BiasAndResistance(line, degreeSign) + ambient + ',' + Number(line.ParameterValue) + unit;
        }
        return BiasAndResistance(line, degreeSign) + Number(line.Frequency) + "[kHz]," + ambient;
    case ChartType::AllowablePower:
        return LargestValueText(line.ExtraValue) +
               GetUnit(QString::fromStdString(line.YAxisName), degreeSign) + ',' +
               BiasAndResistance(line, degreeSign) + ambient;
    case ChartType::CapacitanceTemperature:
        return Number(line.DCBiasVoltage) + "[V] ";
    case ChartType::CapacitanceDCVoltage:
        return Number(line.AmbientTemp) + "[ " + degreeSign + "C] ";
    }
    return {};
}

QString PaneText(const ChartRecord& line, const QString& degreeSign)
{
    return '(' + Conditions(line, degreeSign) + ')';
}

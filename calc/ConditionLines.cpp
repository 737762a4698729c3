#include "calc/ConditionLines.h"

#include "calc/NumberText.h"
#include "calc/Units.h"
#include "partdata/RunTimeError.h"

namespace
{

ConditionLine Bias(const ChartRecord& line)
{
    return {"DC Bias Voltage", NumberText(line.DCBiasVoltage), "[V]"};
}

ConditionLine Resistance(const ChartRecord& line)
{
    return {"Heat Resistance", NumberText(line.HeatResistance), "[C/W]"};
}

ConditionLine Frequency(const ChartRecord& line)
{
    return {"Frequency", NumberText(line.Frequency), "[kHz]"};
}

ConditionLine Ambient(const ChartRecord& line)
{
    return {"Ambient Temperature", NumberText(line.AmbientTemp), "[C]"};
}

ConditionLine Parameter(const ChartRecord& line)
{
    return {line.ParameterName, NumberText(line.ParameterValue), GetUnit(line.ParameterName, {})};
}

} // namespace

std::vector<ConditionLine> ConditionLines(const ChartRecord& line)
{
    switch (static_cast<ChartType>(line.ChartType))
    {
    case ChartType::TemperatureRise:
        if (line.XAxisName == "Frequency")
        {
            return {Bias(line), Resistance(line), Ambient(line), Parameter(line)};
        }
        return {Bias(line), Resistance(line), Frequency(line), Ambient(line)};
    case ChartType::AllowablePower:
        return {Bias(line), Resistance(line), Ambient(line)};
    case ChartType::CapacitanceTemperature:
        return {Bias(line)};
    case ChartType::CapacitanceDCVoltage:
        return {Ambient(line)};
    }
    constexpr auto number = RunTimeErrorNumber::InvalidProcedureCall;
    throw RunTimeError(number, std::string(DescriptionOf(number)) + ": no chart type " +
                                   std::to_string(line.ChartType));
}

#include "calc/Calculate.h"

#include "calc/AllowablePower.h"
#include "calc/Capacitance.h"
#include "calc/TemperatureRise.h"

#include <cmath>
#include <variant>

namespace
{
void WriteCurve(ChartRecord& record, const Curve& curve)
{
    if (curve.HasPoints)
    {
        record.XData = curve.XData;
        record.YData = curve.YData;
    }
    record.XMax = curve.Limits.XMax;
    record.YMax = curve.Limits.YMax;
    record.XMin = curve.Limits.XMin;
    record.YMin = curve.Limits.YMin;
    record.ExtraValue = curve.ExtraValue;
}

PowerModel ModelOf(const PartRecord& part, const ChartRecord& record)
{
    return PowerModelOf(part, record.DCBiasVoltage, record.AmbientTemp, record.HeatResistance);
}

std::optional<ParameterRefusal> CalculateRise(const PartRecord& part, ChartRecord& record)
{
    const auto model = ModelOf(part, record);
    if (record.XAxisName != "Frequency")
    {
        const double frequencyHz = record.Frequency * std::pow(10.0, 3);
        WriteCurve(record, RiseOverLoad(model, RatedVoltage(part), frequencyHz, record.XAxisName));
        return std::nullopt;
    }
    const auto result =
        RiseOverFrequency(model, RatedVoltage(part), record.ParameterName, record.ParameterValue);
    if (const auto* refusal = std::get_if<ParameterRefusal>(&result))
    {
        return *refusal;
    }
    WriteCurve(record, std::get<Curve>(result));
    return std::nullopt;
}

void CalculateAllowable(const PartRecord& part, ChartRecord& record)
{
    const auto model = ModelOf(part, record);
    const double voltageBound = AllowableVoltageBound(RatedVoltage(part), record.DCBiasVoltage);
    const double permittedRise = dTallow(part.Data[Value::UpperTemperature], record.AmbientTemp);
    WriteCurve(record, AllowableLoad(model, voltageBound, permittedRise, record.YAxisName));
}
} // namespace

std::optional<ParameterRefusal> Calculate(const PartRecord& part, ChartRecord& record, CodeView view)
{
    switch (static_cast<ChartType>(record.ChartType))
    {
    case ChartType::TemperatureRise:
        return CalculateRise(part, record);
    case ChartType::AllowablePower:
        CalculateAllowable(part, record);
        break;
    case ChartType::CapacitanceTemperature:
        WriteCurve(record, CalcCapTemperature(part, record.DCBiasVoltage, record.YAxisName, view));
        break;
    case ChartType::CapacitanceDCVoltage:
        WriteCurve(record, CalcCapDCVoltage(part, record.AmbientTemp, record.YAxisName, view));
        break;
    }
    return std::nullopt;
}

#include "app/CalculateData.h"

#include "app/mdlPublic.h"

static bool IsWorkingRecordOf(ChartType one, ChartType other)
{
    const auto type = static_cast<ChartType>(mdlPublic.Charts.WorkingRecord().ChartType);
    return type == one || type == other;
}

static std::optional<ParameterRefusal> CalculateWorkingRecord(std::int16_t partIndex)
{
    ChartRecord record = mdlPublic.Charts.WorkingRecord();
    const PartRecord& part = mdlPublic.Parts.PartData[static_cast<std::size_t>(partIndex)];
    auto refusal = Calculate(part, record, GetCodeView());
    if (!refusal)
    {
        mdlPublic.Charts.Write(std::move(record));
    }
    return refusal;
}

void CalculateDataS(std::int16_t partIndex)
{
    if (IsWorkingRecordOf(ChartType::CapacitanceTemperature, ChartType::CapacitanceDCVoltage))
    {
        CalculateWorkingRecord(partIndex);
    }
}

std::optional<ParameterRefusal> CalculateDataT(std::int16_t partIndex)
{
    const bool isPower = IsWorkingRecordOf(ChartType::TemperatureRise, ChartType::AllowablePower);
    return isPower ? CalculateWorkingRecord(partIndex) : std::nullopt;
}

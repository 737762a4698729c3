#include "app/CalculateData.h"

#include "app/mdlPublic.h"
#include "calc/ChartKinds.h"

/// True when the working record is of a chart type that lives on these data.
static bool Needs(ValueGroup data)
{
    const ChartKind* kind = FindChartKind(mdlPublic.Charts.WorkingRecord().ChartType);
    return kind != nullptr && kind->Needs == data;
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
    if (Needs(Values::OfCapacitance))
    {
        CalculateWorkingRecord(partIndex);
    }
}

std::optional<ParameterRefusal> CalculateDataT(std::int16_t partIndex)
{
    return Needs(Values::OfPower) ? CalculateWorkingRecord(partIndex) : std::nullopt;
}

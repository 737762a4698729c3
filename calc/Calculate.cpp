#include "calc/Calculate.h"

#include "calc/ChartKinds.h"

#include <variant>

static void WriteCurve(ChartRecord& record, const Curve& curve)
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

std::optional<ParameterRefusal> Calculate(const PartRecord& part, ChartRecord& record, CodeView view)
{
    const ChartSweep& sweep = SweepOf(record.ChartType, record.XAxisName);
    const auto result = sweep.CurveOf({.Part = part,
                                       .Line = record,
                                       .X = QuantityNamed(record.XAxisName),
                                       .Y = QuantityNamed(record.YAxisName),
                                       .View = view});
    if (const auto* refusal = std::get_if<ParameterRefusal>(&result))
    {
        return *refusal;
    }
    WriteCurve(record, std::get<Curve>(result));
    return std::nullopt;
}

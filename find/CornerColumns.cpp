#include "find/CornerColumns.h"

/// In Hz of kHz.
static double HertzOf(float kilohertz)
{
    return double{kilohertz} * KindOf(Quantity::Frequency).StoredPerShown;
}

static HeatingBox BoxOf(const OperatingPoint& at)
{
    const auto kilohertz = at.Kilohertz.value_or(ConditionRange());
    return {.BiasVolts = at.BiasVolts,
            .AmbientC = at.HeatingAmbientC(),
            .LowestHertz = HertzOf(kilohertz.Low),
            .HighestHertz = HertzOf(kilohertz.High)};
}

CornerColumns::CornerColumns(const PartRecord& part, const OperatingPoint& at, PermittedRise rise,
                             double heatResistance)
    : box(BoxOf(at))
    , permitted(rise)
    , current(part, box, permitted, heatResistance)
    , voltage(part, box, permitted, heatResistance)
{
}

void CornerColumns::FillHeating(FoundPart& row) const
{
    row.Set(FoundColumn::PermittedRise, permitted.At(box.AmbientC.High));
    row.Set(FoundColumn::LossResistance, current.MostLossResistance());
}

void CornerColumns::FillLoads(FoundPart& row) const
{
    row.Set(FoundColumn::Current, current.LeastCurrent());
    row.Set(FoundColumn::Voltage, voltage.LeastVoltage());
}

template <class Corners> void CornerColumns::FillRiseBy(FoundPart& row, const Corners& corners, double ofEach)
{
    const Extreme rise = corners.MostRise(ofEach);
    row.Set(FoundColumn::Rise, rise.Value);
    row.SetPlace(FoundPlace::Rise, rise.At);
    row.Set(FoundColumn::Body, corners.MostBody(ofEach).Value);
    const Extreme margin = corners.LeastMargin(ofEach);
    row.Set(FoundColumn::Margin, margin.Value);
    row.SetPlace(FoundPlace::Margin, margin.At);
}

void CornerColumns::FillRise(FoundPart& row, const AcLoad& load, double ofEach) const
{
    switch (load.Kind)
    {
    case Quantity::Current:
        FillRiseBy(row, current, ofEach);
        break;
    case Quantity::RmsVoltage:
        FillRiseBy(row, voltage, ofEach);
        break;
    default:
        FailOn(load.Kind);
    }
}

double CornerColumns::LeastBody(const AcLoad& load, double ofEach) const
{
    switch (load.Kind)
    {
    case Quantity::Current:
        return current.LeastBody(ofEach);
    case Quantity::RmsVoltage:
        return voltage.LeastBody(ofEach);
    default:
        FailOn(load.Kind);
    }
}

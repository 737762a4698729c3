#include "find/PointColumns.h"

#include "calc/AllowablePower.h"
#include "calc/Capacitance.h"
#include "calc/Conditions.h"
#include "calc/TemperatureRise.h"
#include "find/SizeOrder.h"
#include "partdata/RunTimeError.h"

#include <algorithm>
#include <cmath>
#include <numbers>

/// How many parts that bear a share each make up the whole, from 1 on; one more than `MostInParallel` where
/// that many do not.
static int SharesOf(double whole, double share)
{
    constexpr int tooMany = MostInParallel + 1;
    if (whole <= 0)
    {
        return 1;
    }
    const double count = share > 0 ? std::ceil(whole / share - RoundingShare) : tooMany;
    return count < tooMany ? std::max(1, static_cast<int>(count)) : tooMany;
}

PointColumns::PointColumns(const FindQuestion& question)
    : at(question.At)
    , wanted(question.Wanted)
    , hertz(double{at.Kilohertz.value_or(0)} * KindOf(Quantity::Frequency).StoredPerShown)
{
}

void PointColumns::Fill(FoundPart& row, FilledColumns groups) const
{
    if (groups.Capacitance)
    {
        FillCapacitance(row);
    }
    const auto model = groups.Heating ? std::optional(ModelOf(row.Part())) : std::nullopt;
    if (model)
    {
        FillHeating(row, *model);
    }
    if (model && groups.Loads)
    {
        FillLoads(row, *model);
    }
    const int count = CountOf(row);
    if (model && at.Load)
    {
        FillRise(row, *model, count);
    }
    FillBank(row, count);
}

void PointColumns::FillCapacitance(FoundPart& row) const
{
    if (const auto point = CapacitancePointAt(row.Part(), at.BiasVolts, at.AmbientC, at.View))
    {
        row.Set(FoundColumn::EffectiveCapacitance, point->PicoFarads);
        row.Set(FoundColumn::Left, 100 + point->Change);
    }
}

/// A heat resistance of the part's own is judged like one that is entered.
PowerModel PointColumns::ModelOf(const PartRecord& part) const
{
    const float resistance = at.HeatResistance.value_or(part.Data[Value::HeatResistance]);
    if (!IsHeatResistancePermitted(resistance))
    {
        throw RunTimeError(RunTimeErrorNumber::InvalidProcedureCall);
    }
    return PowerModelOf(part, at.BiasVolts, at.AmbientC, resistance);
}

double PointColumns::PermittedRiseOf(const PartRecord& part) const
{
    const float maxC = part.Data[Value::UpperTemperature];
    if (!wanted.MostRise)
    {
        return dTallow(maxC, at.AmbientC);
    }
    return std::min<double>(*wanted.MostRise, std::max(0.0, double{maxC} - double{at.AmbientC}));
}

void PointColumns::FillHeating(FoundPart& row, const PowerModel& model) const
{
    row.Set(FoundColumn::PermittedRise, PermittedRiseOf(row.Part()));
    if (const auto loss = model.LossResistance(hertz))
    {
        row.Set(FoundColumn::LossResistance, *loss);
    }
}

void PointColumns::FillLoads(FoundPart& row, const PowerModel& model) const
{
    const double bound = AllowableVoltageBound(RatedVoltage(row.Part()), at.BiasVolts);
    const auto loads = AllowableLoadsAt(model, bound, PermittedRiseOf(row.Part()), hertz);
    row.Set(FoundColumn::Current, loads.Arms);
    row.Set(FoundColumn::Voltage, loads.Vrms);
    row.Set(FoundColumn::ApparentPower, loads.VoltAmperes);
    row.Set(FoundColumn::EffectivePower, loads.Watts);
}

/// The load, where one is given.
AcLoad PointColumns::GivenLoad() const
{
    return at.Load.value_or(AcLoad{});
}

void PointColumns::FillRise(FoundPart& row, const PowerModel& model, int count) const
{
    const double rise = RiseAt(model, GivenLoad().Kind, LoadOfEach(count), hertz);
    row.Set(FoundColumn::Rise, rise);
    row.Set(FoundColumn::Body, double{at.AmbientC} + rise);
}

/// The count itself, and what the bank takes and does.
void PointColumns::FillBank(FoundPart& row, int count) const
{
    row.Set(FoundColumn::Count, count);
    if (const auto size = SizeOf(row.Part()))
    {
        row.Set(FoundColumn::Area, count * size->Area());
    }
    const auto each = row.ValueOf(FoundColumn::EffectiveCapacitance);
    if (each)
    {
        row.Set(FoundColumn::Total, count * *each);
    }
    const bool isFilled = each && *each > 0 && row.ValueOf(FoundColumn::Rise);
    if (isFilled && GivenLoad().Kind == Quantity::Current)
    {
        constexpr double faradsPerPicofarad = 1e-12;
        const double siemens = 2 * std::numbers::pi * hertz * *each * faradsPerPicofarad;
        row.Set(FoundColumn::Ripple, LoadOfEach(count) / siemens);
    }
}

bool PointColumns::IsShared() const
{
    return GivenLoad().Kind != Quantity::RmsVoltage;
}

double PointColumns::LoadOfEach(double count) const
{
    return IsShared() ? GivenLoad().Value / count : double{GivenLoad().Value};
}

std::optional<double> PointColumns::AllowedOf(const FoundPart& row) const
{
    switch (GivenLoad().Kind)
    {
    case Quantity::Current:
        return row.ValueOf(FoundColumn::Current);
    case Quantity::RmsVoltage:
        return row.ValueOf(FoundColumn::Voltage);
    case Quantity::ApparentPower:
        return row.ValueOf(FoundColumn::ApparentPower);
    case Quantity::EffectivePower:
        return row.ValueOf(FoundColumn::EffectivePower);
    default:
        FailOn(GivenLoad().Kind);
    }
}

int PointColumns::CountOf(const FoundPart& row) const
{
    if (!wanted.Parallel)
    {
        return 1;
    }
    return wanted.Parallel->IsFewest ? FewestOf(row) : wanted.Parallel->Count;
}

int PointColumns::FewestOf(const FoundPart& row) const
{
    const auto each = row.ValueOf(FoundColumn::EffectiveCapacitance);
    const int forCapacitance =
        wanted.LeastCapacitance && each ? SharesOf(*wanted.LeastCapacitance, *each) : 1;
    const auto allowed = at.Load && IsShared() ? AllowedOf(row) : std::nullopt;
    return std::max(forCapacitance, allowed ? SharesOf(at.Load->Value, *allowed) : 1);
}

#include "find/PointColumns.h"

#include "calc/AllowablePower.h"
#include "calc/Conditions.h"
#include "calc/CornerCapacitance.h"
#include "calc/TemperatureRise.h"
#include "find/CornerColumns.h"
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
    , isPoint(at.IsPoint())
    , hertz(double{at.Kilohertz.value_or(ConditionRange()).Low} * KindOf(Quantity::Frequency).StoredPerShown)
{
}

void PointColumns::Fill(FoundPart& row, FilledColumns groups) const
{
    if (groups.Capacitance)
    {
        FillCapacitance(row);
    }
    isPoint ? FillAtPoint(row, groups) : FillInRanges(row, groups);
}

void PointColumns::FillAtPoint(FoundPart& row, FilledColumns groups) const
{
    const auto model = groups.Heating ? std::optional(ModelOf(row.Part())) : std::nullopt;
    if (model)
    {
        FillHeating(row, *model);
    }
    if (model && groups.Loads)
    {
        FillLoads(row, *model);
    }
    FillCount(row,
              [&](int count)
              {
                  if (model && at.Load)
                  {
                      FillRise(row, *model, count);
                      FillWarmth(row, row.Known(FoundColumn::Body));
                  }
              });
}

void PointColumns::FillInRanges(FoundPart& row, FilledColumns groups) const
{
    // Below the temperatures of the heating data a part is taken for no warmer than what is around it.
    const bool isColdUnknown = at.HeatingAmbientC() != at.AmbientC;
    std::optional<CornerColumns> corners;
    if (groups.Heating)
    {
        corners.emplace(row.Part(), at, PermittedOf(row.Part()), HeatResistanceOf(row.Part()));
        corners->FillHeating(row);
    }
    if (corners && groups.Loads)
    {
        corners->FillLoads(row);
    }
    FillCount(row,
              [&](int count)
              {
                  if (corners && at.Load)
                  {
                      const double ofEach = LoadOfEach(count);
                      corners->FillRise(row, *at.Load, ofEach);
                      FillWarmth(row, isColdUnknown ? at.AmbientC.Low : corners->LeastBody(*at.Load, ofEach));
                  }
              });
}

/// As many as are asked for; where as few as will do are, more of them while what they have left under their
/// own heat is not enough.
template <class Warmer> void PointColumns::FillCount(FoundPart& row, const Warmer& fillRise) const
{
    int count = CountOf(row);
    fillRise(count);
    const bool isFewest = wanted.Parallel && wanted.Parallel->IsFewest && wanted.LeastWarmCapacitance;
    while (isFewest && count <= MostInParallel &&
           static_cast<float>(count * row.Known(FoundColumn::WarmCapacitance)) < *wanted.LeastWarmCapacitance)
    {
        ++count;
        fillRise(count);
    }
    FillBank(row, count);
}

/// The least capacitance between the lowest and the highest temperature of the part itself, any of which can
/// meet any bias. Empty where the part's characteristic ends below that.
void PointColumns::FillWarmth(FoundPart& row, double coldestC) const
{
    if (!row.ValueOf(FoundColumn::EffectiveCapacitance))
    {
        return;
    }
    const auto warm = static_cast<float>(row.Known(FoundColumn::Body));
    const ConditionRange celsius(std::min(static_cast<float>(coldestC), warm), warm);
    row.Clear(FoundColumn::WarmCapacitance);
    if (!IsClassAmbientPermitted(warm, row.Part(), at.View))
    {
        return;
    }
    if (const auto extremes =
            CapacitanceExtremesIn(row.Part(), {.BiasVolts = at.BiasVolts, .AmbientC = celsius}, at.View))
    {
        row.Set(FoundColumn::WarmCapacitance,
                extremes->Least.Point.PicoFarads * (1 - at.Tolerance.Down / 100.0));
    }
}

void PointColumns::FillCapacitance(FoundPart& row) const
{
    const auto extremes =
        CapacitanceExtremesIn(row.Part(), {.BiasVolts = at.BiasVolts, .AmbientC = at.AmbientC}, at.View);
    if (!extremes)
    {
        return;
    }
    const auto& [least, most] = *extremes;
    const double down = 1 - at.Tolerance.Down / 100.0;
    const double up = 1 + at.Tolerance.Up / 100.0;
    row.Set(FoundColumn::EffectiveCapacitance, least.Point.PicoFarads * down);
    row.Set(FoundColumn::Left, (100 + std::min(least.Point.Change, most.Point.Change)) * down);
    row.SetPlace(FoundPlace::Least, least.At);
    row.Set(FoundColumn::MostCapacitance, most.Point.PicoFarads * up);
    row.SetPlace(FoundPlace::Most, most.At);
}

/// A heat resistance of the part's own is judged like one that is entered.
float PointColumns::HeatResistanceOf(const PartRecord& part) const
{
    const float resistance = at.HeatResistance.value_or(part.Data[Value::HeatResistance]);
    if (!IsHeatResistancePermitted(resistance))
    {
        throw RunTimeError(RunTimeErrorNumber::InvalidProcedureCall);
    }
    return resistance;
}

PowerModel PointColumns::ModelOf(const PartRecord& part) const
{
    return PowerModelOf(part, at.BiasVolts.Low, at.AmbientC.Low, HeatResistanceOf(part));
}

PermittedRise PointColumns::PermittedOf(const PartRecord& part) const
{
    return {.MaxC = part.Data[Value::UpperTemperature], .Wanted = wanted.MostRise};
}

double PointColumns::PermittedRiseOf(const PartRecord& part) const
{
    return PermittedOf(part).At(at.AmbientC.High);
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
    const double bound = AllowableVoltageBound(RatedVoltage(row.Part()), at.BiasVolts.Low);
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
    const Place place{.BiasVolts = at.BiasVolts.Low, .AmbientC = at.AmbientC.Low, .Hertz = hertz};
    row.Set(FoundColumn::Rise, rise);
    row.SetPlace(FoundPlace::Rise, place);
    row.Set(FoundColumn::Body, place.AmbientC + rise);
    row.Set(FoundColumn::Margin, PermittedRiseOf(row.Part()) - rise);
    row.SetPlace(FoundPlace::Margin, place);
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

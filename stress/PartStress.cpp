#include "stress/PartStress.h"

#include "calc/Bounds.h"
#include "calc/Capacitance.h"
#include "calc/Conditions.h"
#include "calc/PermittedRise.h"
#include "partdata/Availability.h"
#include "partdata/Characteristic.h"

#include <algorithm>
#include <cmath>

namespace
{
/// The lines that are told make up this share of the rise.
constexpr double toldShare = 0.99;
/// A line of less than this share of the square is noise, and used by nothing.
constexpr double usedShare = 1e-9;

double HeldHertz(double hertz)
{
    return std::min(hertz, HighestFrequencyHz);
}

/// True where the current heats the part at every frequency that it is used at.
bool HasLaw(const Spectrum& spectrum, const PowerModel& model)
{
    const double used = usedShare * spectrum.Moments.Total().Square;
    const bool allHeat = std::ranges::all_of(
        spectrum.Lines, [&](const SpectralLine& line)
        { return line.Square <= used || model.LossResistance(HeldHertz(line.Hertz)).has_value(); });
    return allHeat && (spectrum.Unresolved <= used || model.LossResistance(HighestFrequencyHz).has_value());
}

bool HasCapacitance(const PartRecord& part)
{
    return HasData(part, Values::OfCapacitance) && CapacitanceModelOf(part) != CapacitanceModel::None;
}

std::optional<double> CapacitanceIf(const PartRecord& part, const StressConditions& at, double celsius)
{
    if (!HasCapacitance(part) || !IsClassAmbientPermitted(static_cast<float>(celsius), part, at.View))
    {
        return std::nullopt;
    }
    const auto point = CapacitancePointAt(part, at.BiasVolts, celsius, at.View);
    return point ? std::optional(point->PicoFarads) : std::nullopt;
}

std::optional<RippleVoltage> RippleIf(const PartRecord& part, const CurrentLoad& load,
                                      const StressConditions& at, const PowerModel& model)
{
    const auto capacitance = CapacitanceIf(part, at, at.AmbientC);
    if (!capacitance || !(*capacitance > 0))
    {
        return std::nullopt;
    }
    constexpr double ohmsPerMilliohm = 1e-3;
    const double ohms = model.LossResistance(HeldHertz(load.MainLine().Hertz)).value_or(0) * ohmsPerMilliohm;
    return RippleVoltageOf(load.Period, 1.0 / at.Parallel, StoredCharge(part, at.AmbientC, at.View),
                           at.BiasVolts, ohms);
}

/// Tells the lines of a part's current one by one.
class LineTeller
{
public:
    LineTeller(const CurrentLoad& load, const PowerModel& heating, int parallel, double wholeRise)
        : model(heating)
        , share(1.0 / parallel)
        , whole(wholeRise)
    {
        for (const SpectralLine& line : load.Lines.Lines)
        {
            all.push_back(Told(line));
        }
        const auto& unresolved = load.Lines.Unresolved;
        rest = Told({HighestFrequencyHz, unresolved});
        std::ranges::stable_sort(all, std::ranges::greater(), &StressLine::Rise);
    }

    std::vector<StressLine> Largest(std::size_t most)
    {
        double resolved = 0;
        for (const StressLine& line : all)
        {
            resolved += line.Rise;
        }
        std::size_t told = 0;
        for (double sum = 0; told < std::min(most, all.size()) && sum < toldShare * resolved; ++told)
        {
            sum += all[told].Rise;
        }
        for (std::size_t i = told; i < all.size(); ++i)
        {
            rest.Arms = std::hypot(rest.Arms, all[i].Arms);
            rest.Rise += all[i].Rise;
            rest.Share += all[i].Share;
        }
        rest.Hertz = std::nullopt;
        rest.Milliohms = std::nullopt;
        all.resize(told);
        all.push_back(rest);
        return std::move(all);
    }

private:
    StressLine Told(const SpectralLine& line) const
    {
        LoadMoments moments;
        moments.Add({line.Hertz, line.Square * share * share});
        const double rise = RiseOf(moments, model);
        return {.Hertz = line.Hertz,
                .Arms = std::sqrt(line.Square) * share,
                .Milliohms = model.LossResistance(HeldHertz(line.Hertz)),
                .Rise = rise,
                .Share = whole > 0 ? rise / whole : 0};
    }

    const PowerModel& model;
    double share;
    double whole;
    std::vector<StressLine> all;
    StressLine rest{};
};

void FillRise(PartStress& stress, const CurrentLoad& load, const PowerModel& model, std::size_t mostLines)
{
    const auto& moments = load.Lines.Moments;
    const double share = 1.0 / stress.At.Parallel;
    stress.RiseBelow = RiseOf(moments.Below.Scaled(share), model);
    stress.RiseAbove = RiseOf(moments.Above.Scaled(share), model);
    stress.LawRise = RiseOf(moments.Total().Scaled(share), model);
    if (load.Record && *stress.LawRise > 0)
    {
        const double thinned = RiseOf(load.Record->Thinned.Scaled(share), model);
        stress.StepError = std::abs(thinned / *stress.LawRise - 1);
    }
    stress.Lines = LineTeller(load, model, stress.At.Parallel, *stress.LawRise).Largest(mostLines);
    if (stress.OutsideShare() <= MostOutside)
    {
        stress.Rise = stress.LawRise;
    }
}
} // namespace

std::optional<double> PartStress::Margin() const
{
    return Rise ? std::optional(PermittedRise - *Rise) : std::nullopt;
}

std::optional<double> PartStress::Body() const
{
    return Rise ? std::optional(double{At.AmbientC} + *Rise) : std::nullopt;
}

std::optional<double> PartStress::AllowedArms() const
{
    return Rise && *Rise > 0 ? std::optional(Arms * std::sqrt(PermittedRise / *Rise)) : std::nullopt;
}

double PartStress::OutsideShare() const
{
    return LawRise && *LawRise > 0 ? (RiseBelow.value_or(0) + RiseAbove.value_or(0)) / *LawRise : 0;
}

PartStress StressOf(const PartRecord& part, const CurrentLoad& load, const StressConditions& at,
                    std::size_t mostLines)
{
    const auto model = PowerModelOf(part, at.BiasVolts, at.AmbientC, at.HeatResistance);
    PartStress stress{.PermittedRise =
                          ::PermittedRise{part.Data[Value::UpperTemperature], at.MostRise}.At(at.AmbientC),
                      .Capacitance = CapacitanceIf(part, at, at.AmbientC),
                      .Ripple = RippleIf(part, load, at, model),
                      .Arms = load.Arms() / at.Parallel,
                      .At = at};
    if (HasLaw(load.Lines, model))
    {
        FillRise(stress, load, model, mostLines);
    }
    if (const auto body = stress.Body())
    {
        stress.WarmCapacitance = CapacitanceIf(part, at, *body);
    }
    return stress;
}

#include "requests/FourDigits.h"
#include "requests/StressReport.h"

#include <cmath>

namespace
{
constexpr double percent = 100;

std::string Digits(double value)
{
    return FourDigits(static_cast<float>(value));
}

/// "14.8 %".
std::string Percent(double share)
{
    constexpr double tenths = 10;
    return Digits(std::round(share * percent * tenths) / tenths) + " %";
}

using Warnings = std::vector<std::string>;

std::string FewPeriodsText(const Stretch& stretch)
{
    const auto all = std::lround(stretch.PeriodsInRecord());
    return all < 2 ? "the record holds a single period; whether the current repeats is not known"
                   : "only the last " + std::to_string(stretch.Periods) + " of " + std::to_string(all) +
                         (stretch.Alike == Likeness::Repeats ? " periods repeat" : " periods heat alike") +
                         "; the current may not be settled";
}

/// Of the record, in their fixed order.
Warnings WarningsOfRecord(const CurrentLoad& load, double stepError)
{
    constexpr double smallShare = 0.2;
    constexpr std::size_t fewPeriods = 3;
    constexpr double smallMean = 0.02;
    constexpr double smallStep = 0.02;
    const Stretch& stretch = load.Record->Counted;
    Warnings lines;
    const bool wereFound = stretch.Alike != Likeness::AsAsked && !stretch.IsCountAsked;
    if (wereFound && (stretch.Share() < smallShare || stretch.Periods < fewPeriods))
    {
        lines.push_back(FewPeriodsText(stretch));
    }
    if (stretch.Alike == Likeness::HeatsAlike)
    {
        lines.emplace_back("the periods are not alike; a stretch in which they heat evenly is taken");
    }
    if (std::abs(load.Figures.Mean) > smallMean * load.Arms())
    {
        lines.push_back("the mean is " + Digits(load.Figures.Mean) + " A, " +
                        Percent(std::abs(load.Figures.Mean) / load.Arms()) +
                        " of the r.m.s. current; no direct current flows through a capacitor");
    }
    if (stepError > smallStep)
    {
        lines.push_back("without every second row the rise changes by " + Percent(stepError) +
                        "; take finer steps");
    }
    return lines;
}

/// "14.8 % of the rise is above 1 MHz", "3 % of the rise is below 10 kHz and 12 % above 1 MHz".
std::string OutsideText(const PartStress& stress)
{
    constexpr double told = 0.0005;
    const double below = stress.RiseBelow.value_or(0) / *stress.LawRise;
    const double above = stress.RiseAbove.value_or(0) / *stress.LawRise;
    std::string text = below > told ? Percent(below) + " of the rise is below 10 kHz" : "";
    if (above > told)
    {
        text += text.empty() ? Percent(above) + " of the rise is above 1 MHz"
                             : " and " + Percent(above) + " above 1 MHz";
    }
    return text;
}

Warnings OutsideWarnings(const PartStress& stress)
{
    constexpr double smallShare = 0.1;
    const double share = stress.OutsideShare();
    if (share <= smallShare)
    {
        return {};
    }
    const bool isAbove = stress.RiseAbove.value_or(0) > stress.RiseBelow.value_or(0);
    const std::string basis =
        isAbove ? "the loss resistance of 1 MHz is taken" : "the loss angle of 10 kHz is taken";
    const auto end =
        share > MostOutside ? "; no rise is told, it would be " + Digits(*stress.LawRise) + " C" : "";
    return {OutsideText(stress) + ", where the part has no data; " + basis + end};
}

Warnings VoltageWarnings(const PartRecord& part, const PartStress& stress)
{
    const double rated = part.Data[Value::RatedVoltage];
    if (!stress.Ripple)
    {
        return {};
    }
    if (stress.Ripple->Highest > rated)
    {
        return {"bias and ripple reach " + Digits(stress.Ripple->Highest) + " V, above the rated " +
                Digits(rated) + " V"};
    }
    return stress.Ripple->PeakToPeak > rated
               ? Warnings{"the ripple of " + Digits(stress.Ripple->PeakToPeak) +
                          " V peak to peak is above the rated " + Digits(rated) + " V"}
               : Warnings{};
}

Warnings WarningsOfPart(const StressedPart& part)
{
    constexpr double smallChange = 0.05;
    const PartStress& stress = part.Stress;
    auto lines = OutsideWarnings(stress);
    if (stress.Rise && *stress.Rise > stress.PermittedRise)
    {
        lines.push_back("rises by " + Digits(*stress.Rise) + " C, above the " + Digits(stress.PermittedRise) +
                        " C permitted");
    }
    const auto voltage = VoltageWarnings(*part.Part, stress);
    lines.insert(lines.end(), voltage.begin(), voltage.end());
    if (stress.Capacitance && stress.WarmCapacitance)
    {
        const double change = *stress.WarmCapacitance / *stress.Capacitance - 1;
        if (std::abs(change) > smallChange)
        {
            lines.push_back("warm it has " + Percent(std::abs(change)) + (change < 0 ? " less" : " more") +
                            " capacitance than at the ambient temperature");
        }
    }
    return lines;
}
} // namespace

std::vector<std::string> WarningsOf(const StressReport& report, CodeView code, const CurveSettings& settings)
{
    auto lines =
        report.Load.Record ? WarningsOfRecord(report.Load, report.StepError().value_or(0)) : Warnings{};
    for (const StressedPart& part : report.Parts)
    {
        const auto before = report.Parts.size() > 1 ? ShownPartNum(*part.Part, code, settings) + ": " : "";
        for (const auto& line : WarningsOfPart(part))
        {
            lines.push_back(before + line);
        }
    }
    return lines;
}

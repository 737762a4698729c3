#pragma once

/// What a current of any shape does to one part.

#include "calc/PowerModel.h"
#include "partdata/PartRecord.h"
#include "stress/CurrentLoad.h"

#include <optional>
#include <vector>

/// Where the part works. The bias and the ambient temperature are ones that the part permits.
struct StressConditions
{
    float BiasVolts = 0;
    float AmbientC = 25;
    /// In °C/W.
    float HeatResistance = 0;
    /// The rise in °C that is wanted at most; the recommended one where it is left out.
    std::optional<float> MostRise = {};
    CodeView View = CodeView::Eia;
    /// Equal parts that share the current.
    int Parallel = 1;
};

/// A line of the part's current.
struct StressLine
{
    /// Nothing for all lines that are not told one by one.
    std::optional<double> Hertz;
    double Arms;
    /// In mΩ; nothing for the rest.
    std::optional<double> Milliohms;
    /// In °C, and as a share of the whole rise.
    double Rise;
    double Share;
};

/// What the part bears. Rises in °C, capacitances in pF.
struct PartStress
{
    /// Nothing where the loss resistance is not positive at a frequency that is used, or where more than half
    /// of the rise lies outside what the data reach to.
    std::optional<double> Rise = {};
    /// What the rise would be, whatever it rests on; nothing where the law has none.
    std::optional<double> LawRise = {};
    std::optional<double> RiseBelow = {};
    std::optional<double> RiseAbove = {};
    /// By which share the rise changes without every second row of a record; nothing for a converter.
    std::optional<double> StepError = {};
    double PermittedRise = 0;
    /// Nothing without capacitance data, or at a temperature that the part's characteristic does not have.
    std::optional<double> Capacitance = {};
    std::optional<double> WarmCapacitance = {};
    /// In V; nothing without capacitance data.
    std::optional<RippleVoltage> Ripple = {};
    /// From the one that heats most down, the rest last.
    std::vector<StressLine> Lines = {};
    double Arms = 0;
    StressConditions At = {};

    std::optional<double> Margin() const;
    std::optional<double> Body() const;
    /// The current of this shape that brings the permitted rise, in Arms.
    std::optional<double> AllowedArms() const;
    /// The share of the rise that rests on what lies outside the data; 0 where there is no rise.
    double OutsideShare() const;
};

/// More than this share of the rise outside the data leaves no rise.
inline constexpr double MostOutside = 0.5;

/// What a load does to a part with heating data; at most so many lines are told. Throws RunTimeError 5, 6 or
/// 11 for a calculation that faults.
PartStress StressOf(const PartRecord& part, const CurrentLoad& load, const StressConditions& at,
                    std::size_t mostLines = 10);

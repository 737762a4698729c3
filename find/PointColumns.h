#pragma once

/// What a part, or a bank of it, does at an operating point, or at the worst in ranges of conditions.

#include "calc/PermittedRise.h"
#include "find/FoundPart.h"
#include "find/Wants.h"

#include <optional>

/// What rounding may take a quotient, or a rise, above the value that is meant.
inline constexpr double RoundingShare = 1e-6;

/// The groups of columns that the rules permit for a part.
struct FilledColumns
{
    bool Capacitance = false;
    bool Heating = false;
    /// The allowed loads, which end where the bias leaves no voltage; only where `Heating` is filled.
    bool Loads = false;
};

/// Fills the columns of parts for one question, by the laws of the charts; in ranges each with its worst
/// value, wherever that occurs. The question must outlive it.
class PointColumns
{
public:
    explicit PointColumns(const FindQuestion& question);

    /// Fills the columns of the groups, the count and what follows from it. Throws RunTimeError 5, 6 or 11
    /// for a calculation that faults.
    void Fill(FoundPart& row, FilledColumns groups) const;

    /// The rise that is permitted for a part, in °C: the least anywhere in the ranges.
    double PermittedRiseOf(const PartRecord& part) const;
    /// How much of the load each of so many parts bears; equal parts share all loads but a voltage.
    double LoadOfEach(double count) const;
    /// The part's own bound of the load's kind; nothing where the column is empty.
    std::optional<double> AllowedOf(const FoundPart& row) const;
    /// True when parts in parallel share the load.
    bool IsShared() const;

private:
    AcLoad GivenLoad() const;
    void FillCapacitance(FoundPart& row) const;
    void FillInRanges(FoundPart& row, FilledColumns groups) const;
    void FillAtPoint(FoundPart& row, FilledColumns groups) const;
    PermittedRise PermittedOf(const PartRecord& part) const;
    float HeatResistanceOf(const PartRecord& part) const;
    PowerModel ModelOf(const PartRecord& part) const;
    void FillHeating(FoundPart& row, const PowerModel& model) const;
    void FillLoads(FoundPart& row, const PowerModel& model) const;
    void FillRise(FoundPart& row, const PowerModel& model, int count) const;
    template <class Warmer> void FillCount(FoundPart& row, const Warmer& fillRise) const;
    void FillWarmth(FoundPart& row, double coldestC) const;
    void FillBank(FoundPart& row, int count) const;
    int CountOf(const FoundPart& row) const;
    int FewestOf(const FoundPart& row) const;

    const OperatingPoint& at;
    const Wants& wanted;
    bool isPoint;
    /// The lowest frequency, which is the only one of a point.
    double hertz;
};

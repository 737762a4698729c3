#include "find/PartFinder.h"

#include "calc/Conditions.h"
#include "find/KindsOfData.h"
#include "find/PointColumns.h"
#include "find/SizeOrder.h"
#include "partdata/RunTimeError.h"

#include <algorithm>

namespace
{
/// Why a group of columns is empty for a part, or nothing where it can be filled.
using Emptiness = std::optional<LeftOutReason>;

/// The reason that counts of two.
Emptiness First(Emptiness a, Emptiness b)
{
    return a && b ? std::min(*a, *b) : (a ? a : b);
}

Emptiness ReasonUnless(bool isMet, LeftOutReason reason)
{
    return isMet ? Emptiness() : Emptiness(reason);
}

/// True when a rule holds at both ends of a range.
template <class Rule> bool HoldsAtEnds(const ConditionRange& range, const Rule& rule)
{
    return rule(range.Low) && (range.IsPoint() || rule(range.High));
}

/// The reason for each group of columns.
struct Empty
{
    Emptiness Capacitance;
    Emptiness Heating;
    Emptiness Loads;
};

/// Judges the parts of one question.
class Judge
{
public:
    explicit Judge(const FindQuestion& asked)
        : at(asked.At)
        , wanted(asked.Wanted)
        , columns(asked)
        , isFewest(wanted.Parallel && wanted.Parallel->IsFewest)
        , needsCapacitance(wanted.LeastCapacitance || wanted.LeastLeft || wanted.LeastWarmCapacitance)
        , needsHeating(at.Load || wanted.MostLossResistance)
        , needsLoads(at.Load && (isFewest || at.Load->Kind != Quantity::Current))
    {
    }

    void Take(const PartRecord& part, FoundParts& found) const
    {
        FoundPart& row = found.Parts.emplace_back(part);
        const auto reason = LeftOutBy(row);
        if (reason)
        {
            found.LeftOut.Add(*reason);
        }
        if (reason || !DoesWhatIsWanted(row))
        {
            found.Parts.pop_back();
        }
    }

private:
    // ---- Data and rules ----

    /// The reason why a part cannot be judged, or nothing once its columns are filled.
    Emptiness LeftOutBy(FoundPart& row) const
    {
        const PartRecord& part = row.Part();
        const Empty empty = EmptyColumnsOf(part);
        auto reason = NeededColumn(empty);
        reason = First(
            reason, ReasonUnless(!wanted.NeedsMeasures || SizeOf(part), LeftOutReason::SizeWithoutMeasures));
        const bool isPermitted = !at.Load || columns.PermittedRiseOf(part) > 0;
        reason = First(reason, ReasonUnless(isPermitted, LeftOutReason::NoPermittedRise));
        return reason ? reason : Fill(row, empty);
    }

    Empty EmptyColumnsOf(const PartRecord& part) const
    {
        const auto heating = HeatingEmptiness(part);
        const bool isBelowRated = IsDCBiasBelowRated(at.BiasVolts.High, part);
        return {.Capacitance = CapacitanceEmptiness(part),
                .Heating = heating,
                .Loads = heating ? heating : ReasonUnless(isBelowRated, LeftOutReason::BiasTooHigh)};
    }

    Emptiness CapacitanceEmptiness(const PartRecord& part) const
    {
        return First(
            ReasonUnless(HasCapacitanceData(part), LeftOutReason::NoCapacitanceData),
            First(ReasonUnless(IsBiasPermitted(part), LeftOutReason::BiasTooHigh),
                  ReasonUnless(HoldsAtEnds(at.AmbientC, [&](float celsius)
                                           { return IsClassAmbientPermitted(celsius, part, at.View); }),
                               LeftOutReason::TemperatureOutOfRange)));
    }

    bool IsBiasPermitted(const PartRecord& part) const
    {
        return HoldsAtEnds(at.BiasVolts, [&](float volts) { return IsDCBiasPermitted(volts, part); });
    }

    /// As without data where no frequency is given; nothing then needs the group.
    Emptiness HeatingEmptiness(const PartRecord& part) const
    {
        const bool hasData = at.Kilohertz && HasHeatingData(part);
        return First(ReasonUnless(hasData, LeftOutReason::NoHeatingData),
                     First(ReasonUnless(IsBiasPermitted(part), LeftOutReason::BiasTooHigh),
                           ReasonUnless(HoldsAtEnds(at.HeatingAmbientC(), [&](float celsius)
                                                    { return IsHeatingAmbientPermitted(celsius, part); }),
                                        LeftOutReason::TemperatureOutOfRange)));
    }

    /// The reason of the groups that are needed; where none is, any one group that can be filled will do.
    Emptiness NeededColumn(const Empty& empty) const
    {
        if (!needsCapacitance && !needsHeating)
        {
            const bool hasColumn = !empty.Capacitance || !empty.Heating;
            return hasColumn ? Emptiness()
                             : First(empty.Capacitance, at.Kilohertz ? empty.Heating : Emptiness());
        }
        return First(
            needsCapacitance ? empty.Capacitance : Emptiness(),
            First(needsHeating ? empty.Heating : Emptiness(), needsLoads ? empty.Loads : Emptiness()));
    }

    Emptiness Fill(FoundPart& row, const Empty& empty) const
    {
        try
        {
            columns.Fill(
                row, {.Capacitance = !empty.Capacitance, .Heating = !empty.Heating, .Loads = !empty.Loads});
        }
        catch (const RunTimeError&)
        {
            return LeftOutReason::CannotBeCalculated;
        }
        const bool hasLoss = !wanted.MostLossResistance || row.ValueOf(FoundColumn::LossResistance);
        return ReasonUnless(hasLoss, LeftOutReason::CannotBeCalculated);
    }

    // ---- What is wanted ----

    /// Limits are judged on values as they are told, so that a value that was read off a list is met.
    bool DoesWhatIsWanted(const FoundPart& row) const
    {
        return IsWithin(row, FoundColumn::Count, static_cast<float>(MostInParallel)) && HasCapacitance(row) &&
               HasWarmCapacitance(row) && HasLeft(row) && BearsLoad(row) &&
               (!wanted.MostLossResistance ||
                IsWithin(row, FoundColumn::LossResistance, *wanted.MostLossResistance));
    }

    static bool IsWithin(const FoundPart& row, FoundColumn column, float most)
    {
        return static_cast<float>(row.Known(column)) <= most;
    }

    /// The fewest parts that will do have it by their count, but for a part that has none at all.
    bool HasCapacitance(const FoundPart& row) const
    {
        if (!wanted.LeastCapacitance)
        {
            return true;
        }
        const double total = row.Known(FoundColumn::Total);
        return isFewest ? total > 0 : static_cast<float>(total) >= *wanted.LeastCapacitance;
    }

    /// A part that has no capacitance where it works so warm has not enough of it.
    bool HasWarmCapacitance(const FoundPart& row) const
    {
        const double bank = row.Known(FoundColumn::Count) * row.Known(FoundColumn::WarmCapacitance);
        return !wanted.LeastWarmCapacitance || static_cast<float>(bank) >= *wanted.LeastWarmCapacitance;
    }

    bool HasLeft(const FoundPart& row) const
    {
        return !wanted.LeastLeft || static_cast<float>(row.Known(FoundColumn::Left)) >= *wanted.LeastLeft;
    }

    /// The fewest parts that will do bear a shared load by their count.
    bool BearsLoad(const FoundPart& row) const
    {
        if (!at.Load || (isFewest && columns.IsShared()))
        {
            return true;
        }
        const double each = columns.LoadOfEach(row.Known(FoundColumn::Count));
        const double rounding = row.Known(FoundColumn::PermittedRise) * RoundingShare;
        const auto allowed = columns.AllowedOf(row);
        // The largest rise need not meet the least permitted one.
        return row.Known(FoundColumn::Margin) >= -rounding &&
               (!allowed || static_cast<float>(each) <= static_cast<float>(*allowed));
    }

    const OperatingPoint& at;
    const Wants& wanted;
    PointColumns columns;
    bool isFewest;
    bool needsCapacitance;
    bool needsHeating;
    /// All loads but a current end at the voltage that the bias leaves, and a count is taken from them.
    bool needsLoads;
};
} // namespace

FoundParts FindParts(std::span<const PartRecord* const> candidates, const FindQuestion& question)
{
    const Judge judge(question);
    FoundParts found;
    found.Parts.reserve(candidates.size());
    for (const PartRecord* part : candidates)
    {
        judge.Take(*part, found);
    }
    return found;
}

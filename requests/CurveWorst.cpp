#include "requests/CurveWorst.h"

#include "calc/ChartKinds.h"
#include "calc/Conditions.h"
#include "calc/CornerCapacitance.h"
#include "calc/PermittedRise.h"
#include "calc/SearchBox.h"
#include "calc/TemperatureRise.h"
#include "calc/ValueAt.h"
#include "partdata/RunTimeError.h"
#include "requests/CurvePoints.h"
#include "requests/RangeEntry.h"
#include "requests/RequestError.h"
#include "requests/UnitEntry.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr int nodesASide = 9;
constexpr int refinements = 3;

/// A condition of the curve, or its X, with the places that it is tried at.
struct Dimension
{
    std::string_view Key;
    Quantity Measures;
    /// Null for the X.
    float ChartRecord::*Member;
    /// What is told to one unit that is kept.
    float KeptPerTold;
    ConditionRange Range;
    std::vector<double> Nodes;
};

using Values = std::vector<double>;

/// The curves of one part between the ends of their conditions.
class Between
{
public:
    Between(const PartRecord& curvePart, const LineEnds& lineEnds, const ConditionRange& x, CodeView codeView)
        : part(curvePart)
        , ends(lineEnds)
        , code(codeView)
        , sweep(SweepOf(ends.Low.ChartType, ends.Low.XAxisName))
        , xQuantity(QuantityNamed(ends.Low.XAxisName))
        , yQuantity(QuantityNamed(ends.Low.YAxisName))
    {
        for (const ConditionKind& kind : ConditionKinds())
        {
            if (sweep.Uses(kind.Id) && kind.Measures != Quantity::HeatResistance && kind.Measures)
            {
                Add(kind.Key, *kind.Measures, kind.Value, 1, {ends.Low.*kind.Value, ends.High.*kind.Value});
            }
        }
        const auto conditions = ConditionKinds();
        const auto own = std::ranges::find(conditions, std::optional(xQuantity), &ConditionKind::Measures);
        Add(own != conditions.end() ? own->Key : "x", xQuantity, nullptr, KindOf(xQuantity).StoredPerShown,
            x);
    }

    /// Throws RunTimeError where the curve has no value.
    std::optional<WorstPoint> Worst(const ConditionRange& x) const
    {
        const auto extremes = IsOfCapacitance() ? OfCapacitance() : Searched();
        return extremes ? std::optional(WorstPoint{x, extremes->first, extremes->second}) : std::nullopt;
    }

private:
    using Extremes = std::pair<CurveExtreme, CurveExtreme>;

    void Add(std::string_view key, Quantity measures, float ChartRecord::*member, float keptPerTold,
             const ConditionRange& range)
    {
        auto nodes = EvenNodes(range.Low, range.High, nodesASide);
        const float seam = PermittedRise{.MaxC = part.Data[Value::UpperTemperature]}.FallsFrom();
        if (member == &ChartRecord::AmbientTemp && seam > range.Low && seam < range.High)
        {
            nodes.push_back(seam);
        }
        dimensions.push_back({key, measures, member, keptPerTold, range, std::move(nodes)});
    }

    bool IsOfCapacitance() const
    {
        return yQuantity == Quantity::Capacitance || yQuantity == Quantity::CapacitanceChange;
    }

    ConditionRange RangeOf(std::string_view key) const
    {
        return std::ranges::find(dimensions, key, &Dimension::Key)->Range;
    }

    std::optional<Extremes> OfCapacitance() const
    {
        const auto found = CapacitanceExtremesIn(
            part, {.BiasVolts = RangeOf("dcBias"), .AmbientC = RangeOf("ambient")}, code);
        if (!found)
        {
            return std::nullopt;
        }
        const auto told = [&](const CapacitanceAtPlace& place)
        {
            const bool isChange = yQuantity == Quantity::CapacitanceChange;
            return CurveExtreme{static_cast<float>(isChange ? place.Point.Change : place.Point.PicoFarads),
                                {{"dcBias", Quantity::DCVoltage, static_cast<float>(place.At.BiasVolts)},
                                 {"ambient", Quantity::Temperature, static_cast<float>(place.At.AmbientC)}}};
        };
        return Extremes{told(found->Least), told(found->Most)};
    }

    /// The law with each value as it would be entered.
    double At(const Values& values) const
    {
        ChartRecord line = ends.Low;
        for (std::size_t i = 0; i < dimensions.size(); ++i)
        {
            if (dimensions[i].Member != nullptr)
            {
                line.*dimensions[i].Member = static_cast<float>(values[i]);
            }
        }
        const auto y =
            sweep.LawAt({part, line, xQuantity, yQuantity, code}, static_cast<float>(values.back()));
        return y && std::isfinite(*y) ? *y : throw RunTimeError(RunTimeErrorNumber::InvalidProcedureCall);
    }

    std::optional<Extremes> Searched() const
    {
        try
        {
            return Extremes{Told(LeastFor(1)), Told(LeastFor(-1))};
        }
        catch (const RunTimeError&)
        {
            return std::nullopt;
        }
    }

    /// Where the curve, or with -1 its negative, is least.
    Values LeastFor(int sign) const
    {
        Values best;
        double least = INFINITY;
        Values tried(dimensions.size());
        VisitNodes(tried, 0,
                   [&]
                   {
                       const double value = sign * At(tried);
                       best = value < least ? tried : best;
                       least = std::min(least, value);
                   });
        for (int round = 0; round < refinements; ++round)
        {
            for (std::size_t i = 0; i < dimensions.size(); ++i)
            {
                Refine(best, i, sign, std::pow(4.0, round));
            }
        }
        return best;
    }

    template <class Visit> void VisitNodes(Values& tried, std::size_t dimension, const Visit& visit) const
    {
        if (dimension == dimensions.size())
        {
            visit();
            return;
        }
        for (const double node : dimensions[dimension].Nodes)
        {
            tried[dimension] = node;
            VisitNodes(tried, dimension + 1, visit);
        }
    }

    /// Golden section along one condition, over the steps beside the best divided by `fineness`.
    void Refine(Values& best, std::size_t dimension, int sign, double fineness) const
    {
        const auto [low, high] = std::ranges::minmax(dimensions[dimension].Nodes);
        if (low == high)
        {
            return;
        }
        const double step = (high - low) / (nodesASide - 1) / fineness;
        Values tried = best;
        const auto valueAt = [&](double place)
        {
            tried[dimension] = place;
            return sign * At(tried);
        };
        const double place = LeastBetween(valueAt, std::max(low, best[dimension] - step),
                                          std::min(high, best[dimension] + step));
        if (valueAt(place) < sign * At(best))
        {
            best[dimension] = place;
        }
    }

    CurveExtreme Told(const Values& values) const
    {
        CurveExtreme extreme{static_cast<float>(At(values)), {}};
        for (std::size_t i = 0; i < dimensions.size(); ++i)
        {
            const auto kept = static_cast<float>(values[i]);
            extreme.At.push_back(
                {dimensions[i].Key, dimensions[i].Measures, kept / dimensions[i].KeptPerTold});
        }
        return extreme;
    }

    const PartRecord& part;
    const LineEnds& ends;
    CodeView code;
    const ChartSweep& sweep;
    Quantity xQuantity;
    Quantity yQuantity;
    std::vector<Dimension> dimensions;
};

[[noreturn]] void RefuseAt(const std::string& typed, std::string why)
{
    throw RequestError(RequestErrorKind::Condition, "at", std::move(why)).Of(typed);
}
} // namespace

std::optional<WorstPoint> WorstOf(const PartRecord& part, const LineEnds& ends, const ConditionRange& x,
                                  CodeView code)
{
    return Between(part, ends, x, code).Worst(x);
}

std::vector<WorstPoint> WorstPointsOf(const PartRecord& part, const LineEnds& ends, CodeView code,
                                      const std::vector<std::string>& at)
{
    const auto quantity = QuantityNamed(ends.Low.XAxisName);
    std::vector<WorstPoint> points;
    for (const std::string& typed : at)
    {
        ConditionRangeOf(typed, quantity, "at");
        const auto both = RangeTypedAs(typed, quantity, "at").value_or(TypedEnds{typed, typed});
        const ConditionRange x(StoredValueInUnit(both.Low, quantity, "at"),
                               StoredValueInUnit(both.High, quantity, "at"));
        for (const ChartRecord* line : {&ends.Low, &ends.High})
        {
            for (const float end : {x.Low, x.High})
            {
                if (!Reaches(*line, end))
                {
                    RefuseAt(typed, ReachOf(*line));
                }
            }
        }
        const auto worst = WorstOf(part, ends, x, code);
        const bool isRise = worst && ends.Low.YAxisName == NameOf(Quantity::TemperatureRise);
        if (!worst || (isRise && worst->Most.Y > RiseCeiling))
        {
            RefuseAt(typed, "the curve does not reach it everywhere in the ranges");
        }
        points.push_back(*worst);
    }
    return points;
}

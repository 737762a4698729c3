#include "calc/CornerCapacitance.h"

#include "calc/Bounds.h"
#include "calc/PeakedEdge.h"
#include "calc/TurningPoints.h"
#include "partdata/Characteristic.h"

namespace
{
/// The least and the most of what has been tried.
class Tried
{
public:
    Tried(const PartRecord& tested, CodeView shown)
        : part(tested)
        , view(shown)
    {
    }

    void Try(const Place& place)
    {
        const auto point = CapacitancePointAt(part, place.BiasVolts, place.AmbientC, view);
        const CapacitanceAtPlace candidate{.Point = point.value_or(CapacitancePoint{}), .At = place};
        if (isFirst || IsBeyond(candidate, extremes.Least, -1))
        {
            extremes.Least = candidate;
        }
        if (isFirst || IsBeyond(candidate, extremes.Most, 1))
        {
            extremes.Most = candidate;
        }
        isFirst = false;
    }

    const CapacitanceExtremes& Extremes() const { return extremes; }

private:
    static bool IsBeyond(const CapacitanceAtPlace& candidate, const CapacitanceAtPlace& best, int sign)
    {
        return Extreme{candidate.Point.PicoFarads, candidate.At}.IsBeyond({best.Point.PicoFarads, best.At},
                                                                          sign);
    }

    const PartRecord& part;
    CodeView view;
    CapacitanceExtremes extremes;
    bool isFirst = true;
};

/// Where one factor of the capacitance is least and most over its range, the lower place of equals.
struct FactorExtremes
{
    double Least;
    double Most;
};

/// A change in percent over a condition that is counted from `reference`.
FactorExtremes ExtremesOf(const Polynomial<7>& change, const ConditionRange& range, double reference)
{
    FactorExtremes at{.Least = range.Low, .Most = range.Low};
    double least = ValueOf(change, range.Low - reference);
    double most = least;
    const auto take = [&](double condition)
    {
        const double value = ValueOf(change, condition - reference);
        at.Least = value < least ? condition : at.Least;
        at.Most = value > most ? condition : at.Most;
        least = std::min(least, value);
        most = std::max(most, value);
    };
    VisitZeros(Derivative(change), range.Low - reference, range.High - reference,
               [&](double counted) { take(counted + reference); });
    take(range.High);
    return at;
}

void TryProducts(Tried& tried, const PartRecord& part, const ConditionBox& box)
{
    const auto bias = ExtremesOf(PolynomialOf<7>(part, Values::BiasPolynomial), box.BiasVolts, 0);
    const auto ambient =
        ExtremesOf(PolynomialOf<7>(part, Values::TemperaturePolynomial), box.AmbientC, EiaReferenceC);
    const auto tryAt = [&](double volts)
    {
        tried.Try({.BiasVolts = volts, .AmbientC = ambient.Least});
        if (ambient.Most != ambient.Least)
        {
            tried.Try({.BiasVolts = volts, .AmbientC = ambient.Most});
        }
    };
    tryAt(bias.Least);
    if (bias.Most != bias.Least)
    {
        tryAt(bias.Most);
    }
}

/// Over the bias at the temperature of the peak, wherever the ambient range holds it.
void TryRidge(Tried& tried, const PartRecord& part, const ConditionBox& box)
{
    const auto peak = PolynomialOf<3>(part, Values::PeakTemperature);
    const auto tryAt = [&](double volts)
    {
        const double celsius = ValueOf(peak, volts);
        if (celsius > box.AmbientC.Low && celsius < box.AmbientC.High)
        {
            tried.Try({.BiasVolts = volts, .AmbientC = celsius});
        }
    };
    tryAt(box.BiasVolts.Low);
    VisitZeros(Derivative(PolynomialOf<7>(part, Values::BiasPolynomial)), box.BiasVolts.Low,
               box.BiasVolts.High, tryAt);
    tryAt(box.BiasVolts.High);
}

void TryPeaks(Tried& tried, const PartRecord& part, const ConditionBox& box)
{
    const PeakedEdge edge(part);
    const auto tryEdge = [&](double celsius)
    {
        edge.VisitTurns(celsius, box.BiasVolts,
                        [&](double volts) { tried.Try({.BiasVolts = volts, .AmbientC = celsius}); });
    };
    tryEdge(box.AmbientC.Low);
    if (!box.AmbientC.IsPoint())
    {
        tryEdge(box.AmbientC.High);
    }
    TryRidge(tried, part, box);
}
} // namespace

std::optional<CapacitanceExtremes> CapacitanceExtremesIn(const PartRecord& part, const ConditionBox& box,
                                                         CodeView view)
{
    const auto model = CapacitanceModelOf(part);
    if (model == CapacitanceModel::None)
    {
        return std::nullopt;
    }
    Tried tried(part, view);
    if (box.BiasVolts.IsPoint() && box.AmbientC.IsPoint())
    {
        tried.Try({.BiasVolts = box.BiasVolts.Low, .AmbientC = box.AmbientC.Low});
        return tried.Extremes();
    }
    model == CapacitanceModel::Peaked ? TryPeaks(tried, part, box) : TryProducts(tried, part, box);
    return tried.Extremes();
}

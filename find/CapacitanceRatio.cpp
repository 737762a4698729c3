#include "find/CapacitanceRatio.h"

#include "calc/Bounds.h"
#include "calc/Capacitance.h"
#include "calc/CheckedMath.h"
#include "calc/PeakedEdge.h"
#include "calc/SearchBox.h"
#include "partdata/Characteristic.h"

#include <limits>

static constexpr int nodesASide = 17;

CapacitanceRatio::CapacitanceRatio(const PartRecord& candidate, const PartRecord& replaced,
                                   const ConditionBox& asked)
    : part(candidate)
    , original(replaced)
    , box(asked)
{
}

static double PicoFaradsAt(const PartRecord& part, double biasVolts, double celsius)
{
    const auto point = CapacitancePointAt(part, biasVolts, celsius, CodeView::Eia);
    return point ? point->PicoFarads : 0;
}

double CapacitanceRatio::At(double biasVolts, double celsius) const
{
    return CheckedQuotient(PicoFaradsAt(part, biasVolts, celsius),
                           PicoFaradsAt(original, biasVolts, celsius));
}

/// Nothing has been tried yet.
static RatioExtremes Untried()
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    return {.Least = {infinity, {}}, .Most = {-infinity, {}}};
}

void CapacitanceRatio::Try(RatioExtremes& extremes, const Place& place) const
{
    const Extreme tried{At(place.BiasVolts, place.AmbientC), place};
    extremes.Least = tried.IsBeyond(extremes.Least, -1) ? tried : extremes.Least;
    extremes.Most = tried.IsBeyond(extremes.Most, 1) ? tried : extremes.Most;
}

/// At a bias, the temperatures of either part's peak.
void CapacitanceRatio::TryPeaks(RatioExtremes& extremes, double volts) const
{
    for (const PartRecord* each : {&part, &original})
    {
        if (CapacitanceModelOf(*each) != CapacitanceModel::Peaked)
        {
            continue;
        }
        const double peak = ValueOf(PolynomialOf<3>(*each, Values::PeakTemperature), volts);
        if (peak > box.AmbientC.Low && peak < box.AmbientC.High)
        {
            Try(extremes, {.BiasVolts = volts, .AmbientC = peak});
        }
    }
}

double CapacitanceRatio::LeastAtFirst() const
{
    auto extremes = Untried();
    for (const double volts : {box.BiasVolts.Low, box.BiasVolts.High})
    {
        Try(extremes, {.BiasVolts = volts, .AmbientC = box.AmbientC.Low});
        Try(extremes, {.BiasVolts = volts, .AmbientC = box.AmbientC.High});
        TryPeaks(extremes, volts);
    }
    return extremes.Least.Value;
}

/// 100 % and the change of a part by one condition alone.
static Polynomial<7> LeftOf(const PartRecord& part, ValueGroup change)
{
    constexpr double whole = 100;
    auto polynomial = PolynomialOf<7>(part, change);
    polynomial[0] = whole;
    return polynomial;
}

/// Where the quotient of two changes turns, counted from a reference: N'·D - N·D'.
static Polynomial<12> TurnsOf(const Polynomial<7>& above, const Polynomial<7>& below)
{
    auto turns = Product(Derivative(above), below);
    const auto other = Product(above, Derivative(below));
    for (std::size_t i = 0; i < turns.size(); ++i)
    {
        turns[i] -= other[i];
    }
    return turns;
}

/// Where one factor of the ratio is least and where it is most.
static std::array<double, 2> FactorPlaces(const Polynomial<7>& above, const Polynomial<7>& below,
                                          const ConditionRange& range, double reference)
{
    std::array<double, 2> places = {range.Low, range.Low};
    const auto ratioAt = [&](double condition)
    { return ValueOf(above, condition - reference) / ValueOf(below, condition - reference); };
    const auto take = [&](double condition)
    {
        const double ratio = ratioAt(condition);
        places[0] = ratio < ratioAt(places[0]) ? condition : places[0];
        places[1] = ratio > ratioAt(places[1]) ? condition : places[1];
    };
    VisitZeros(TurnsOf(above, below), range.Low - reference, range.High - reference,
               [&](double counted) { take(counted + reference); });
    take(range.High);
    return places;
}

RatioExtremes CapacitanceRatio::OfProducts() const
{
    const auto biases = FactorPlaces(LeftOf(part, Values::BiasPolynomial),
                                     LeftOf(original, Values::BiasPolynomial), box.BiasVolts, 0);
    const auto ambients =
        FactorPlaces(LeftOf(part, Values::TemperaturePolynomial),
                     LeftOf(original, Values::TemperaturePolynomial), box.AmbientC, EiaReferenceC);
    auto extremes = Untried();
    for (const double volts : biases)
    {
        for (const double celsius : ambients)
        {
            Try(extremes, {.BiasVolts = volts, .AmbientC = celsius});
        }
    }
    return extremes;
}

RatioExtremes CapacitanceRatio::OfPeaks() const
{
    const auto biases = EvenNodes(box.BiasVolts.Low, box.BiasVolts.High, nodesASide);
    const auto ambients = EvenNodes(box.AmbientC.Low, box.AmbientC.High, nodesASide);
    auto extremes = Untried();
    for (const double volts : biases)
    {
        for (const double celsius : ambients)
        {
            Try(extremes, {.BiasVolts = volts, .AmbientC = celsius});
        }
        TryPeaks(extremes, volts);
    }
    Refine(extremes);
    return extremes;
}

/// From the best nodes on.
void CapacitanceRatio::Refine(RatioExtremes& extremes) const
{
    const auto& bias = box.BiasVolts;
    const auto& ambient = box.AmbientC;
    constexpr int steps = nodesASide - 1;
    const auto refine = [&](Extreme& extreme, int sign)
    {
        const auto found = Refined([&](double volts, double celsius) { return sign * At(volts, celsius); },
                                   {extreme.At.BiasVolts, extreme.At.AmbientC, sign * extreme.Value},
                                   {bias.Low, bias.High}, {ambient.Low, ambient.High},
                                   {(bias.High - bias.Low) / steps, (ambient.High - ambient.Low) / steps});
        extreme = {sign * found.Value, {.BiasVolts = found.X, .AmbientC = found.Y}};
    };
    refine(extremes.Least, 1);
    refine(extremes.Most, -1);
}

RatioExtremes CapacitanceRatio::Extremes() const
{
    const bool isPeaked = CapacitanceModelOf(part) == CapacitanceModel::Peaked ||
                          CapacitanceModelOf(original) == CapacitanceModel::Peaked;
    return isPeaked ? OfPeaks() : OfProducts();
}

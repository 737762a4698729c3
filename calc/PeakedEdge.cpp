#include "calc/PeakedEdge.h"

/// From here on a bracket with two signs is searched, at the last one the middle is near enough.
static constexpr int searchedDepth = 4;
static constexpr int lastDepth = 10;

static Enclosure Sum(Enclosure a, Enclosure b)
{
    return {a.Low + b.Low, a.High + b.High};
}

static Enclosure Times(Enclosure a, Enclosure b)
{
    const auto [low, high] = std::minmax({a.Low * b.Low, a.Low * b.High, a.High * b.Low, a.High * b.High});
    return {low, high};
}

/// A power of what is 0 or more.
static Enclosure PowerOf(Enclosure base, double exponent)
{
    const double low = std::pow(std::max(0.0, base.Low), exponent);
    const double high = std::pow(std::max(0.0, base.High), exponent);
    return {std::min(low, high), std::max(low, high)};
}

PeakedEdge::PeakedEdge(const PartRecord& part)
    : amplitude(PolynomialOf<7>(part, Values::BiasPolynomial))
    , amplitudeSlope(Derivative(amplitude))
    , peak(PolynomialOf<3>(part, Values::PeakTemperature))
    , decayBelow(PolynomialOf<3>(part, Values::DecayBelow))
    , decayAbove(PolynomialOf<3>(part, Values::DecayAbove))
    , exponentBelow(part.Data[Value::ExponentBelow])
    , exponentAbove(part.Data[Value::ExponentAbove])
{
    constexpr double whole = 100;
    amplitude[0] = whole;
}

PeakedEdge::Flank PeakedEdge::FlankAt(double celsius, bool isAbove) const
{
    Flank flank{.Distance = peak,
                .Decay = isAbove ? decayAbove : decayBelow,
                .Exponent = isAbove ? exponentAbove : exponentBelow};
    flank.Distance[0] -= celsius;
    for (double& coefficient : flank.Distance)
    {
        coefficient = isAbove ? -coefficient : coefficient;
    }
    return flank;
}

/// Of a·exp(-k·d^n) without the exponential, which has no zero: a' - a·d^(n-1)·(k'·d + k·n·d').
double PeakedEdge::SlopeAt(const Flank& flank, double volts) const
{
    const double distance = std::max(0.0, ValueOf(flank.Distance, volts));
    const double inner =
        ValueOf(Derivative(flank.Decay), volts) * distance +
        ValueOf(flank.Decay, volts) * flank.Exponent * ValueOf(Derivative(flank.Distance), volts);
    return ValueOf(amplitudeSlope, volts) -
           ValueOf(amplitude, volts) * std::pow(distance, flank.Exponent - 1) * inner;
}

Enclosure PeakedEdge::SlopeWithin(const Flank& flank, double from, double to) const
{
    const auto values = [=](const auto& polynomial) { return OnSpan(polynomial, from, to).Values(); };
    auto distance = values(flank.Distance);
    distance = {std::max(0.0, distance.Low), std::max(0.0, distance.High)};
    const Enclosure exponent{flank.Exponent, flank.Exponent};
    const auto inner = Sum(Times(values(Derivative(flank.Decay)), distance),
                           Times(Times(values(flank.Decay), exponent), values(Derivative(flank.Distance))));
    const auto power = PowerOf(distance, flank.Exponent - 1);
    if (!std::isfinite(power.High))
    {
        return {-power.High, power.High};
    }
    const auto outer = Times(values(amplitude), power);
    const auto product = Times(outer, inner);
    return Sum(values(amplitudeSlope), {-product.High, -product.Low});
}

void PeakedEdge::VisitWithin(const Flank& flank, double from, double to, int depth,
                             const std::function<void(double volts)>& visit) const
{
    if (!SlopeWithin(flank, from, to).HasZero())
    {
        return;
    }
    const double middle = std::midpoint(from, to);
    const double slopeFrom = SlopeAt(flank, from);
    const double slopeTo = SlopeAt(flank, to);
    if (depth >= searchedDepth && slopeFrom * slopeTo < 0 && std::isfinite(slopeFrom * slopeTo))
    {
        visit(ZeroBetween([&](double volts) { return SlopeAt(flank, volts); }, from, to, slopeFrom, slopeTo));
    }
    else if (depth == lastDepth)
    {
        visit(middle);
    }
    else
    {
        VisitWithin(flank, from, middle, depth + 1, visit);
        VisitWithin(flank, middle, to, depth + 1, visit);
    }
}

void PeakedEdge::VisitTurns(double celsius, const ConditionRange& biasVolts,
                            const std::function<void(double volts)>& visit) const
{
    visit(biasVolts.Low);
    if (biasVolts.IsPoint())
    {
        return;
    }
    auto passing = peak;
    passing[0] -= celsius;
    double from = biasVolts.Low;
    const auto visitUpTo = [&](double to)
    {
        const bool isAbove = ValueOf(passing, std::midpoint(from, to)) <= 0;
        VisitWithin(FlankAt(celsius, isAbove), from, to, 0, visit);
        visit(to);
        from = to;
    };
    VisitZeros(passing, biasVolts.Low, biasVolts.High, visitUpTo);
    visitUpTo(biasVolts.High);
}

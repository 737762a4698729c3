#include "stress/LoadMoments.h"

#include "calc/Bounds.h"
#include "calc/CheckedMath.h"

#include <algorithm>
#include <cmath>

namespace
{
/// What a period that is read off a record may be off.
constexpr double edge = 0.01;

bool IsBelow(double hertz)
{
    return hertz < LowestFrequencyHz * (1 - edge);
}

bool IsAbove(double hertz)
{
    return hertz > HighestFrequencyHz * (1 + edge);
}
} // namespace

bool IsInside(double hertz)
{
    return !IsBelow(hertz) && !IsAbove(hertz);
}

void LoadMoments::Add(const SpectralLine& line)
{
    const double hertz = std::min(line.Hertz, HighestFrequencyHz);
    OverFrequency += line.Square / hertz;
    Square += line.Square;
    TimesFrequency += line.Square * hertz;
}

LoadMoments& LoadMoments::operator+=(const LoadMoments& other)
{
    OverFrequency += other.OverFrequency;
    Square += other.Square;
    TimesFrequency += other.TimesFrequency;
    return *this;
}

LoadMoments LoadMoments::Scaled(double factor) const
{
    const double square = factor * factor;
    return {.OverFrequency = OverFrequency * square,
            .Square = Square * square,
            .TimesFrequency = TimesFrequency * square};
}

EquivalentSine LoadMoments::Sine() const
{
    return Square > 0 ? EquivalentSine{.Arms = std::sqrt(Square), .Hertz = Square / OverFrequency}
                      : EquivalentSine{.Arms = 0, .Hertz = 0};
}

double RiseOf(const LoadMoments& moments, const PowerModel& model)
{
    const double sum =
        model.Q1 * moments.OverFrequency + model.Q2 * moments.Square + model.Q3 * moments.TimesFrequency;
    return CheckedFinite(CheckedQuotient(sum * model.Rth, model.Rref));
}

void SplitMoments::Add(const SpectralLine& line)
{
    (IsBelow(line.Hertz) ? Below : (IsAbove(line.Hertz) ? Above : Inside)).Add(line);
}

LoadMoments SplitMoments::Total() const
{
    LoadMoments total = Below;
    total += Inside;
    total += Above;
    return total;
}

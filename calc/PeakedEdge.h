#pragma once

/// The peaked model of capacitance over the bias at one temperature: where it may be least or most.

#include "calc/Box.h"
#include "calc/TurningPoints.h"
#include "partdata/PartRecord.h"

#include <functional>

/// The polynomial of a group of coefficients, which stand from the highest power down: all of them, or all
/// but a constant of 0.
template <std::size_t Count> Polynomial<Count> PolynomialOf(const PartRecord& part, ValueGroup group)
{
    Polynomial<Count> polynomial{};
    for (auto i = group.First; i <= group.Last; ++i)
    {
        polynomial[Count - 1 - (i - group.First)] = part.Data[i];
    }
    return polynomial;
}

/// One part of the peaked model.
class PeakedEdge
{
public:
    explicit PeakedEdge(const PartRecord& part);

    /// Hands the ends of the bias range to `visit`, every place at which the curve at the temperature turns,
    /// and where the peak passes the temperature.
    void VisitTurns(double celsius, const ConditionRange& biasVolts,
                    const std::function<void(double volts)>& visit) const;

private:
    /// One flank of the bell at one temperature: a bell of |celsius - peak|, the sign of which is known.
    struct Flank
    {
        Polynomial<3> Distance;
        Polynomial<3> Decay;
        double Exponent;
    };

    Flank FlankAt(double celsius, bool isAbove) const;
    double SlopeAt(const Flank& flank, double volts) const;
    Enclosure SlopeWithin(const Flank& flank, double from, double to) const;
    void VisitWithin(const Flank& flank, double from, double to, int depth,
                     const std::function<void(double volts)>& visit) const;

    Polynomial<7> amplitude;
    Polynomial<6> amplitudeSlope;
    Polynomial<3> peak;
    Polynomial<3> decayBelow;
    Polynomial<3> decayAbove;
    double exponentBelow;
    double exponentAbove;
};

#pragma once

/// Heating by a current over ranges of ambient temperature and frequency.
///
/// At a fixed frequency the heating is a quadratic in the temperature; over the frequency it is largest at an
/// end. What the design of a circuit turns on, the rise, the body temperature, the margin that is left and
/// the current that is allowed, therefore has its extremes at few temperatures, which are known beforehand.

#include "calc/Box.h"
#include "calc/PermittedRise.h"
#include "calc/TurningPoints.h"

/// One part over a box. The part must outlive it.
class CurrentCorners
{
public:
    /// Throws RunTimeError 5 where the heating law may reach zero in the box, or may be largest between the
    /// ends of the frequency range, and 5, 6 or 11 where it faults.
    CurrentCorners(const PartRecord& part, const HeatingBox& box, PermittedRise permitted,
                   double heatResistance);

    /// The largest loss resistance, in mΩ.
    double MostLossResistance() const;
    /// The least of the currents that bring the permitted rise, in Arms.
    double LeastCurrent() const;
    /// The largest rise of a current, in °C.
    Extreme MostRise(double amperes) const;
    /// The largest body temperature, in °C.
    Extreme MostBody(double amperes) const;
    /// The least body temperature, in °C.
    double LeastBody(double amperes) const;
    /// What is least left of the permitted rise, in °C.
    Extreme LeastMargin(double amperes) const;

private:
    using Quadratic = Polynomial<3>;

    void RefuseUnlessPositive(double fromC, double toC, double fromHertz, double toHertz, int depth) const;
    Quadratic HeatingAt(double hertz) const;
    PowerModel ModelAt(double ambientC) const;
    double LeastRiseAt(double ambientC, double amperes) const;
    bool IsWarmerThroughout(double amperes) const;
    template <class ValueAt, class TurnsOf>
    Extreme ExtremeOf(int sign, const ValueAt& valueAt, const TurnsOf& turnsOf) const;
    template <class TryAt> void TrySeam(const TryAt& tryAt) const;
    template <std::size_t Count, class TryAt>
    void TryZeros(const Polynomial<Count>& polynomial, const TryAt& tryAt) const;
    Polynomial<2> BodySlope(const Quadratic& heating, double amperes) const;

    const PartRecord& part;
    HeatingBox box;
    PermittedRise permitted;
    double heatResistance;
    Quadratic perHertz;
    Quadratic flat;
    Quadratic byHertz;
};

#pragma once

/// How a part heats up under an AC load: the current law, the voltage law and the load for a given rise.

#include "calc/CheckedMath.h"
#include "partdata/PartRecord.h"

#include <cmath>
#include <optional>

/// °C per A² of the current law before it is scaled to a heat resistance: perF/f + flat + f·byF. Throws
/// RunTimeError 11 for a frequency of 0 and 6 for a sum that is not finite.
inline double CurrentHeating(double perF, double flat, double byF, double frequencyHz)
{
    return CheckedFinite(CheckedQuotient(perF, frequencyHz) + flat + frequencyHz * byF);
}

/// The heating of one part under given conditions, all in double precision.
///
/// Current law: rise = kI·I². Voltage law: rise = kV·V^S3. Effective power law: rise = P·Rth. At an apparent
/// power X the current and the voltage of that rise have the product X.
struct PowerModel
{
    double Q1;
    double Q2;
    double Q3;
    double S1;
    double S2;
    double S3;
    /// Heat resistance that the coefficients were measured at, in °C/W.
    double Rref;
    /// Heat resistance in use, in °C/W.
    double Rth;

    /// °C per A² at a frequency: (Q1/f + Q2 + f·Q3)·Rth/Rref; 1.0 where that, or the sum, is not positive.
    double kI(double frequencyHz) const
    {
        const double sum = CurrentHeating(Q1, Q2, Q3, frequencyHz);
        if (sum <= 0)
        {
            return 1.0;
        }
        const double k = CheckedQuotient(sum * Rth, Rref);
        return k > 0 ? k : 1.0;
    }

    /// The resistance in mΩ that the current heats, (Q1/f + Q2 + f·Q3)/Rref; nothing where that, or the
    /// bracket, is not positive. It is the part's own, whatever `Rth` is. Throws RunTimeError 6 or 11.
    std::optional<double> LossResistance(double frequencyHz) const;

    /// The part of kV that does not depend on frequency: S1·Rth/Rref.
    double kVConstant() const;

    /// °C per V^S3 at a frequency: (log10 f)^S2 · S1·Rth/Rref.
    double kV(double frequencyHz) const;
};

/// The model at a bias, ambient temperature and heat resistance: quadratics in t = Ta - 20, and surfaces in t
/// and r = bias / rated voltage, of which S1 is a power of ten.
///
/// Throws RunTimeError 11 without a rated voltage and 6 for a coefficient that is not finite.
PowerModel PowerModelOf(const PartRecord& part, double biasVolts, double ambientC, double heatResistance);

/// The model without the voltage law, which is 0: it takes a tenth of the time. Throws as `PowerModelOf`.
PowerModel CurrentModelOf(const PartRecord& part, double ambientC, double heatResistance);

/// Rated voltage of a part, in V.
inline double RatedVoltage(const PartRecord& part)
{
    return part.Data[Value::RatedVoltage];
}

/// The permitted temperature rise in °C: 20 below Tmax - 20, from there on what is left up to Tmax, above
/// Tmax nothing. Tmax - 20 is rounded to single precision before it is compared.
double dTallow(float maxC, double ambientC);

/// The voltage whose rise is `rise`, without a bound: (rise/kV)^(1/S3).
double VoltageOfRise(double rise, double kV, double S3);

/// The current whose rise is `rise`: (rise/kI)^½.
inline double CurrentOfRise(double rise, double kI)
{
    return std::sqrt(CheckedQuotient(rise, kI));
}

/// The exponent 2·S3/(S3 + 2) of the apparent power law. Throws RunTimeError 11 for S3 = -2.
double ApparentPowerExponent(double S3);

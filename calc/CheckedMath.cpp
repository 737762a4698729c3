#include "calc/CheckedMath.h"

double CheckedPower(double base, double exponent)
{
    const bool zeroToNegative = base == 0 && exponent < 0;
    const bool negativeToFraction = base < 0 && exponent != std::trunc(exponent);
    if (zeroToNegative || negativeToFraction)
    {
        throw RunTimeError(RunTimeErrorNumber::InvalidProcedureCall);
    }
    return CheckedFinite(std::pow(base, exponent));
}

#include "calc/CheckedMath.h"

#include "partdata/RunTimeError.h"

#include <cmath>

double CheckedFinite(double value)
{
    if (!std::isfinite(value))
    {
        throw RunTimeError(RunTimeErrorNumber::Overflow);
    }
    return value;
}

double CheckedQuotient(double dividend, double divisor)
{
    if (divisor == 0)
    {
        throw RunTimeError(RunTimeErrorNumber::DivisionByZero);
    }
    return CheckedFinite(dividend / divisor);
}

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

float StoredSingle(double value)
{
    const auto stored = static_cast<float>(value);
    CheckedFinite(stored);
    return stored;
}

#pragma once

/// Arithmetic that raises a run-time error at the step that goes wrong.

#include "partdata/RunTimeError.h"

#include <cmath>

/// The value itself. Throws RunTimeError 6 when it is not finite.
inline double CheckedFinite(double value)
{
    if (!std::isfinite(value)) [[unlikely]]
    {
        throw RunTimeError(RunTimeErrorNumber::Overflow);
    }
    return value;
}

/// The divisor itself. Throws RunTimeError 11 when it is zero.
inline double CheckedDivisor(double divisor)
{
    if (divisor == 0) [[unlikely]]
    {
        throw RunTimeError(RunTimeErrorNumber::DivisionByZero);
    }
    return divisor;
}

/// `dividend` / `divisor`. Throws RunTimeError 11 for a zero divisor, whatever the dividend, and 6 when the
/// quotient is not finite.
inline double CheckedQuotient(double dividend, double divisor)
{
    return CheckedFinite(dividend / CheckedDivisor(divisor));
}

/// `base` to the power `exponent`, real: a negative base keeps its sign under an odd exponent.
///
/// Throws RunTimeError 5 for 0 to a negative power and for a negative base to a fractional power, 6 when the
/// power is not finite.
double CheckedPower(double base, double exponent);

/// The value as it is stored. Throws RunTimeError 6 when it does not fit a single.
inline float StoredSingle(double value)
{
    const auto stored = static_cast<float>(value);
    CheckedFinite(stored);
    return stored;
}

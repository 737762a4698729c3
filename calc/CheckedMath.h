#pragma once

/// Arithmetic that raises a run-time error at the step that goes wrong.

/// The value itself. Throws RunTimeError 6 when it is not finite.
double CheckedFinite(double value);

/// `dividend` / `divisor`. Throws RunTimeError 11 for a zero divisor, whatever the dividend, and 6 when the
/// quotient is not finite.
double CheckedQuotient(double dividend, double divisor);

/// `base` to the power `exponent`, real: a negative base keeps its sign under an odd exponent.
///
/// Throws RunTimeError 5 for 0 to a negative power and for a negative base to a fractional power, 6 when the
/// power is not finite.
double CheckedPower(double base, double exponent);

/// The value as it is stored. Throws RunTimeError 6 when it does not fit a single.
float StoredSingle(double value);

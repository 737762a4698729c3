#pragma once

/// Powers and logarithms that come out the same to the last bit on every machine.
///
/// The mathematics library of a platform may round exp, log and pow its own way, and the part files would
/// then differ from one machine to the next. These use only the four operations and the square root, which
/// every machine rounds alike.

/// e to the power of `x`, for |x| up to 600.
double PlainExp(double x);

/// The natural logarithm of a positive value.
double PlainLog(double value);

/// The common logarithm of a positive value.
double PlainLog10(double value);

/// `base` to the power of `exponent`; 0 for a base of 0, the base must not be negative.
double PlainPower(double base, double exponent);

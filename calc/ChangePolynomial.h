#pragma once

/// The polynomials of a part that have no constant term: nothing changes at the point of reference.

#include "partdata/ValueNames.h"

#include <array>

/// a·x^6 + b·x^5 + ... + f·x of a group of coefficients, worked out in double precision.
template <class Number>
double ChangePolynomial(const std::array<Number, DataValues>& values, ValueGroup coefficients, double x)
{
    double sum = 0;
    for (auto i = coefficients.First; i <= coefficients.Last; ++i)
    {
        sum = (sum + values[i]) * x;
    }
    return sum;
}

/// Change of capacitance by the bias alone, in percent.
template <class Number> double BiasChange(const std::array<Number, DataValues>& values, double volts)
{
    return ChangePolynomial(values, Values::BiasPolynomial, volts);
}

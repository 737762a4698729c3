#pragma once

/// The polynomials of a part that have no constant term: nothing changes at the point of reference.

#include "partdata/ValueNames.h"

#include <array>
#include <cstddef>

/// a·x^6 + b·x^5 + ... + f·x of a group of coefficients, worked out in double precision.
template <class Number, std::size_t Count>
double ChangePolynomial(const std::array<Number, Count>& values, ValueGroup coefficients, double x)
{
    double sum = 0;
    for (auto i = coefficients.First; i <= coefficients.Last; ++i)
    {
        sum = (sum + values[i]) * x;
    }
    return sum;
}

/// Change of capacitance by the bias alone, in percent.
template <class Number, std::size_t Count>
double BiasChange(const std::array<Number, Count>& values, double volts)
{
    return ChangePolynomial(values, Values::BiasPolynomial, volts);
}

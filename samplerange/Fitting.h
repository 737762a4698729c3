#pragma once

/// Fits of smooth laws to samples: polynomials and falling polynomials.

#include <array>
#include <span>
#include <vector>

/// A sample of a law.
struct Sample
{
    double X;
    double Y;
};

/// Coefficients c[0]·x + c[1]·x² + ... + c[5]·x⁶ of a curve through the origin.
using OriginPolynomial = std::array<double, 6>;

/// The curve through the origin that comes closest, by least squares, to the samples. Well-behaved when
/// |x| is at most about 1.
OriginPolynomial FitThroughOrigin(std::span<const Sample> samples);

/// The curve through the origin that comes closest, by least squares, to samples on 0 to 1 among those
/// that never fall there, and that grow faster than `leastSlope` from the first fifth on.
OriginPolynomial FitRising(std::span<const Sample> samples, double leastSlope);

/// The polynomial c[0] + c[1]·x + ... of the given number of coefficients whose largest deviation from
/// the samples is (nearly) as small as it can be.
std::vector<double> FitSmallestDeviation(std::span<const Sample> samples, std::size_t coefficients);

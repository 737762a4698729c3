#pragma once

/// Fits of smooth laws to samples: polynomials and falling polynomials.

#include <array>
#include <cstddef>
#include <span>
#include <vector>

using Row = std::vector<double>;

/// The weights of basis functions that come closest to the target by least squares: `basis[i]` holds their
/// values at sample i, `target[i]` what they are to add up to, `weights[i]` how much that counts. The samples
/// must tell the functions apart; not finite where they do not.
Row LeastSquares(const std::vector<Row>& basis, const Row& target, const Row& weights);

/// As above, all samples alike, for weights of which none may be negative: the best of all choices of weights
/// that are allowed to differ from 0. At most some ten functions, since the choices double with each.
Row NonNegativeLeastSquares(const std::vector<Row>& basis, const Row& target);

/// A sample of a law.
struct Sample
{
    double X;
    double Y;
};

/// Coefficients c[0]·x + c[1]·x² + ... + c[5]·x⁶ of a curve through the origin.
using OriginPolynomial = std::array<double, 6>;

inline constexpr std::size_t RisingPieces = 6;

/// Bernstein polynomial k of degree 5, integrated from 0. Its slope is nowhere negative on 0 to 1, so any sum
/// with weights that are not negative never falls there.
OriginPolynomial RisingPiece(std::size_t k);

double ValueOf(const OriginPolynomial& polynomial, double x);

/// The curve through the origin that comes closest, by least squares, to the samples. Well-behaved when
/// |x| is at most about 1.
OriginPolynomial FitThroughOrigin(std::span<const Sample> samples);

/// The curve through the origin that comes closest, by least squares, to samples on 0 to 1 among those
/// that never fall there, and that grow faster than `leastSlope` from the first fifth on.
OriginPolynomial FitRising(std::span<const Sample> samples, double leastSlope);

/// The polynomial c[0] + c[1]·x + ... of the given number of coefficients whose largest deviation from
/// the samples is (nearly) as small as it can be.
std::vector<double> FitSmallestDeviation(std::span<const Sample> samples, std::size_t coefficients);

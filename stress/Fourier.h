#pragma once

/// Fourier sums of equally spaced values.

#include <complex>
#include <span>
#include <vector>

/// The Fourier sums Σ x_j·exp(-2πi·jk/n) in place of the values, whose number n is a power of two.
void Transform(std::span<std::complex<double>> values);

/// The sums 0 to n/2 of real values, whose number n is a power of two from 2 on.
std::vector<std::complex<double>> FourierSums(std::span<const double> values);

#include "stress/Fourier.h"

#include <algorithm>
#include <cstddef>
#include <numbers>
#include <utility>

namespace
{
using Complex = std::complex<double>;

/// exp(-2πi·j/n) for j up to n/2.
std::vector<Complex> Turns(std::size_t n)
{
    std::vector<Complex> turns(n / 2);
    for (std::size_t j = 0; j < turns.size(); ++j)
    {
        turns[j] = std::polar(1.0, -2 * std::numbers::pi * static_cast<double>(j) / static_cast<double>(n));
    }
    return turns;
}

/// Puts each value where the bits of its index, read backwards, say.
void ReverseBits(std::span<Complex> values)
{
    for (std::size_t i = 1, reversed = 0; i < values.size(); ++i)
    {
        std::size_t bit = values.size() / 2;
        for (; (reversed & bit) != 0; bit /= 2)
        {
            reversed ^= bit;
        }
        reversed ^= bit;
        if (i < reversed)
        {
            std::swap(values[i], values[reversed]);
        }
    }
}

/// The product without the care for infinities that the library's takes.
Complex Times(const Complex& a, const Complex& b)
{
    return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
}

/// The sums of two halves that lie one behind the other.
void Join(std::span<Complex> values, std::span<const Complex> turns)
{
    const std::size_t half = values.size() / 2;
    const std::size_t stride = turns.size() / half;
    for (std::size_t j = 0; j < half; ++j)
    {
        const Complex turned = Times(values[half + j], turns[j * stride]);
        values[half + j] = values[j] - turned;
        values[j] += turned;
    }
}

/// Halves first, so that what fits the processor's cache is done while it is there.
void TransformReversed(std::span<Complex> values, std::span<const Complex> turns)
{
    if (values.size() < 2)
    {
        return;
    }
    const std::size_t half = values.size() / 2;
    TransformReversed(values.first(half), turns);
    TransformReversed(values.last(half), turns);
    Join(values, turns);
}
} // namespace

void Transform(std::span<Complex> values)
{
    ReverseBits(values);
    TransformReversed(values, Turns(values.size()));
}

std::vector<Complex> FourierSums(std::span<const double> values)
{
    // Two real values make one complex: their sums are told apart by their symmetry.
    const std::size_t half = values.size() / 2;
    std::vector<Complex> pairs(half);
    for (std::size_t j = 0; j < half; ++j)
    {
        pairs[j] = {values[2 * j], values[2 * j + 1]};
    }
    Transform(pairs);
    const auto turns = Turns(values.size());
    std::vector<Complex> sums(half + 1);
    for (std::size_t k = 0; k < half; ++k)
    {
        const Complex mirrored = std::conj(pairs[(half - k) % half]);
        const Complex even = (pairs[k] + mirrored) / 2.0;
        const Complex odd = Times((pairs[k] - mirrored) / 2.0, {0, -1});
        sums[k] = even + Times(odd, turns[k]);
    }
    sums[half] = pairs[0].real() - pairs[0].imag();
    return sums;
}

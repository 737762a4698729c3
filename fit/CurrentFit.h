#pragma once

/// The heating by current: rise = (Q1/f + Q2 + Q3·f)·I², each Q with its change over the ambient temperature.

#include "fit/Measurements.h"
#include "fit/PartValues.h"

#include <span>

/// What the measurements can tell.
struct CurrentTerms
{
    /// The term in f.
    bool ByFrequency = false;
    /// Powers of t = T - 20 that the terms may change with: 0, 1 or 2.
    std::size_t TemperaturePowers = 0;
};

inline constexpr std::size_t FrequencyTerms = 3;

struct CurrentFit
{
    /// Each term at 20 °C, in °C/A² of its power of f in Hz: 1/f, 1, f.
    std::array<double, FrequencyTerms> Terms{};
    /// What t and t² add to it.
    std::array<double, FrequencyTerms> Linear{};
    std::array<double, FrequencyTerms> Square{};

    /// °C per A² at a frequency in Hz and an ambient temperature in °C.
    double At(double hz, double celsius) const;
};

/// The law through the points, each of which weighs by its own size; none of the terms is negative at 20 °C.
/// A term changes with temperature where it makes a quarter of the heating at some point, or where the law
/// comes that much closer by it. The rises and loads must be above 0.
///
/// The law is positive from 10 kHz to 1 MHz and from 20 °C to `highestC`: what would break that is left out.
CurrentFit FitCurrent(std::span<const MeasuredRise> points, const CurrentTerms& terms, double highestC);

/// Writes the nine values of the current law.
void WriteCurrentFit(const CurrentFit& fit, PartValues& data);

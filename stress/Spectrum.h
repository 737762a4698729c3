#pragma once

/// The lines of a current over whole periods.

#include "stress/LoadMoments.h"
#include "stress/Waveform.h"

#include <cstddef>
#include <vector>

/// The highest line that is told apart, in Hz; all that lies above is held together.
inline constexpr double HighestLineHz = 4e6;

/// The longest stretch whose lines are told apart, in s.
inline constexpr double LongestStretch = 1;

/// What heats, without the direct current.
struct Spectrum
{
    SplitMoments Moments;
    /// The squares about each multiple of the fundamental, upwards. What lies below half the fundamental
    /// stands first, at the frequency that heats alike.
    std::vector<SpectralLine> Lines;
    /// The square that no line carries, in A²; it belongs above 1 MHz.
    double Unresolved = 0;
};

/// The spectrum of a stretch of so many equal periods, at most `LongestStretch` long. The mean currents of
/// fine bins, which hold the exact charge, take the place of samples, so that steps of any length and jumps
/// cost nothing.
Spectrum SpectrumOf(const Waveform& current, TimeSpan stretch, std::size_t periods);

/// The spectrum of one period of a current of few corners, each line from the exact integral.
Spectrum ExactSpectrumOf(const Waveform& period);

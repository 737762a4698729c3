#pragma once

/// What heats a capacitor: three sums over the lines of a current, the same for every part.
///
/// The current law is linear in 1/f, 1 and f, so that with I the r.m.s. current of each line at f, held at 1
/// MHz above it, any waveform heats by Q1·Σ I²/f + Q2·Σ I² + Q3·Σ I²·f.

#include "calc/PowerModel.h"

/// One line of a current: its frequency and the square of its r.m.s. value in A².
struct SpectralLine
{
    double Hertz;
    double Square;
};

/// A sine that heats as the current does, in Arms and Hz.
struct EquivalentSine
{
    double Arms;
    double Hertz;
};

/// The sums in A²/Hz, A² and A²·Hz.
struct LoadMoments
{
    double OverFrequency = 0;
    double Square = 0;
    double TimesFrequency = 0;

    /// Adds a line, held at 1 MHz where it lies above.
    void Add(const SpectralLine& line);
    LoadMoments& operator+=(const LoadMoments& other);
    /// The moments of a current that is so many times as large.
    LoadMoments Scaled(double factor) const;

    /// The sine that heats by the same, to 0.17 % in the sample range: current √Σ I², frequency Σ I² / Σ
    /// I²/f. 0 Arms at 0 Hz for no current.
    EquivalentSine Sine() const;
};

/// The rise in °C by the current law. Throws RunTimeError 6 or 11.
double RiseOf(const LoadMoments& moments, const PowerModel& model);

/// The moments of a current, told apart by whether the part data reach to its lines: a line within 1 % of 10
/// kHz or 1 MHz counts as inside.
struct SplitMoments
{
    LoadMoments Below;
    LoadMoments Inside;
    LoadMoments Above;

    void Add(const SpectralLine& line);
    LoadMoments Total() const;
};

/// True where a line counts as inside what the part data reach to.
bool IsInside(double hertz);

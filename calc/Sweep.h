#pragma once

/// The sweeps that all curves share: 200 points, evenly spaced or evenly spaced in the logarithm of
/// frequency.

#include "calc/ChartRecord.h"

#include <array>
#include <cstddef>

using SweepValues = std::array<double, CurvePoints>;

/// X values from `start` on, each grown from the one before by a 199th of the span, in double precision.
SweepValues LinearSweep(double start, double end);

/// ln(i / 199) for the points 1 to 199 of a linear sweep that starts at 0; point 0 has no logarithm and
/// holds 0.
const SweepValues& LnFractions();

/// The frequencies X(i) = 10^(4 + 2i/199) Hz, 10 kHz to 1 MHz, and what the heating laws take from them.
struct FrequencySweep
{
    SweepValues Hz;
    /// ln(log10 X(i)): turns a power of log10 X(i) into one exponential.
    SweepValues LnLog10Hz;
    CurveValues XData;
};

/// The one frequency sweep; depends on nothing and is worked out on first use.
const FrequencySweep& LogFrequencySweep();

#pragma once

/// The capacitance of parts that peak over temperature: a bell that bias lowers, moves and widens.

#include "fit/BiasLoss.h"
#include "fit/Measurements.h"

#include <span>

/// One side of the bell: exp(-(distance/50 °C)^Exponent·Decay).
struct PeakFlank
{
    double Decay = 0;
    double Exponent = 0;
    /// Change of the decay at rated voltage, relative; it goes with the square of the bias.
    double DecayByBias = 0;
};

struct PeakFit
{
    /// At 25 °C without bias.
    double Picofarads = 0;
    BiasLosses Losses{};
    /// What is left far from the peak, in percent: a change of nearly -100.
    double Offset = 0;
    /// In °C, and how far the peak moves up to rated voltage, with the square of the bias.
    double PeakC = 0;
    double PeakByBias = 0;
    PeakFlank Below;
    PeakFlank Above;
    /// Sum of the squared misses, in percent, and of the pulls towards what such parts do.
    double Cost = 0;
};

/// The bell through the points, each of which weighs by its own size. Where `overBias` says so, what bias
/// does to the peak's place and width is fitted as well, else nothing. What points near the peak cannot tell,
/// the exponents and what is left far away, is pulled mildly towards that of usual parts.
PeakFit FitPeak(std::span<const MeasuredCapacitance> points, double ratedVolts, bool overBias);

/// Writes the capacitance, its bias and its bell.
void WritePeakFit(const PeakFit& fit, double ratedVolts, PartValues& data);

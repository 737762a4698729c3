#pragma once

/// The capacitance of parts that peak over temperature: a bell that bias lowers, moves and widens.

#include "fit/BiasLoss.h"
#include "fit/Measurements.h"

#include <optional>
#include <span>

/// What bias does to the bell at rated voltage: how far the peak moves, in °C, and by which share the decays
/// change. Below, it goes with the square of the bias.
struct PeakByBias
{
    double Shift = 0;
    double DecayBelow = 0;
    double DecayAbove = 0;
};

/// One side of the bell: exp(-(distance/50 °C)^Exponent·Decay).
struct PeakFlank
{
    double Decay = 0;
    double Exponent = 0;
};

struct PeakFit
{
    /// At 25 °C without bias.
    double Picofarads = 0;
    BiasLosses Losses{};
    /// What is left far from the peak, in percent: a change of nearly -100.
    double Offset = 0;
    /// In °C.
    double PeakC = 0;
    PeakFlank Below;
    PeakFlank Above;
    PeakByBias ByBias;
    /// Sum of the squared misses, in percent, and of the pulls towards what such parts do.
    double Cost = 0;
};

/// The bell through the points, each of which weighs by its own size. What bias does to it is fitted as well,
/// unless it is known. What points near the peak cannot tell, the exponents and what is left far away, is
/// pulled mildly towards that of usual parts.
PeakFit FitPeak(std::span<const MeasuredCapacitance> points, double ratedVolts,
                const std::optional<PeakByBias>& known);

/// Writes the capacitance, its bias and its bell.
void WritePeakFit(const PeakFit& fit, double ratedVolts, PartValues& data);

#pragma once

/// The share of capacitance that bias takes away, as a sum of pieces that only rise.

#include "fit/LeastSquares.h"
#include "fit/PartValues.h"

/// How much of each piece there is; none is negative, so the loss never falls.
using BiasLosses = std::array<double, RisingPieces>;

/// The pieces at a fraction r (0 to 1) of the rated voltage.
std::array<double, RisingPieces> RisingPiecesAt(double r);

/// The loss at a fraction r of the rated voltage: 0 without bias, 0.75 where a quarter of the capacitance is
/// left.
double LossAt(const BiasLosses& losses, double r);

/// Writes the coefficients of the bias.
void WriteBiasLoss(const BiasLosses& losses, double ratedVolts, PartValues& data);

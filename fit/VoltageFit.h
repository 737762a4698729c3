#pragma once

/// The heating by voltage where it was measured.

#include "fit/Measurements.h"
#include "fit/VoltageLaw.h"

#include <span>

/// The voltage law through the points, each of which weighs by its own size: its place, its slope over
/// frequency and its exponent. How it changes with bias and temperature is that of the known terms. Needs two
/// voltages and two frequencies; rises and voltages must be above 0.
VoltageTerms FitVoltageTerms(std::span<const MeasuredRise> points, double ratedVolts,
                             const VoltageTerms& known);

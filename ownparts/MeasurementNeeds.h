#pragma once

/// What a part's laws need to have been measured, and what the measurements tell of them.

#include "fit/CurrentFit.h"
#include "ownparts/MeasuredPart.h"
#include "partdata/Characteristic.h"

#include <string>
#include <vector>

/// What is missing as a whole, and what would help, a line each; nothing where the part can be fitted.
///
///     bias: measured up to 12 V of 25 V: measure up to 24.25 V, lower the rated voltage, or name a part with
///     --like
///
/// What a like part has lent counts as measured; where there is one, no other is asked for.
std::vector<std::string> RefusalsOf(const MeasuredPart& part, CapacitanceModel model, bool hasLike);

/// True where the bias has a gap below the rated voltage, and the bias that it is to be measured up to.
bool BiasEndsEarly(const MeasuredPart& part);
double LeastTopBias(double ratedVolts);

/// The temperatures that a sweep without bias has to begin at or below, and to end at or above.
TemperatureRange NeededTemperatures(const Characteristic& characteristic);

/// Temperatures that a sweep without bias has to have.
std::size_t LeastTemperatures(CapacitanceModel model);

/// Biases that a sweep has to have.
inline constexpr std::size_t LeastBiases = 7;

/// True where two frequencies are far enough apart to tell the terms of the current law.
bool TellsFrequencyTerms(const MeasuredPart& part);

/// The terms of the current law that the rises tell.
CurrentTerms TermsToldBy(const MeasuredPart& part);

/// True where the rises over voltage tell the voltage law.
bool TellsVoltageLaw(const MeasuredPart& part);

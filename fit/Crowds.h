#pragma once

/// Points by the ten thousand, told by fewer.

#include "fit/Measurements.h"

#include <span>
#include <vector>

/// No fewer points than these are ever gathered: so many are fitted in no time.
inline constexpr std::size_t UncrowdedPoints = 2000;

/// The points, in the order of temperature and bias where there are more than `UncrowdedPoints`: then all
/// within 2 °C and 1 % of the rated voltage become one, which misses a law as they do together. What it is
/// off by itself, their scatter, is no law's business.
std::vector<MeasuredCapacitance> Uncrowded(std::span<const MeasuredCapacitance> points, double ratedVolts);

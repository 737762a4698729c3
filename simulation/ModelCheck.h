#pragma once

/// What a model is held against before it is written.

#include "partdata/PartRecord.h"
#include "simulation/ModelRefusal.h"

#include <variant>

/// The largest share by which the slope of the model's charge may differ from the capacitance of the charts.
inline constexpr double MostChargeDeviation = 1e-4;

/// Compares the slope of the model's charge with the capacitance of the charts, over the bias from 0 to the
/// rated voltage and over the temperatures of the model. Gives the largest deviation as a share, or why there
/// is no model.
std::variant<double, ModelRefusal> CheckModel(const PartRecord& part);

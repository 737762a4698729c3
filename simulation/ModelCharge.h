#pragma once

/// The charge of a model as a simulator works it out from the model's text.

#include "partdata/Characteristic.h"
#include "partdata/PartRecord.h"

#include <functional>

/// Charge over nominal capacitance, in V, of a voltage in V. Odd in the voltage; beyond the rated voltage it
/// goes on straight.
using ModelCharge = std::function<double(double volts)>;

/// The charge of a part at one temperature in °C, for a part of one of the capacitance models.
ModelCharge ModelChargeAt(const PartRecord& part, double celsius);

/// The temperatures that a model is told for, and held at beyond: the range of the part's capacitance charts
/// in the EIA view.
TemperatureRange ModelTemperatures(const PartRecord& part);

/// The temperature of the peak at a bias, within `ModelTemperatures`; for a part of the peaked model.
double PeakTemperatureAt(const PartRecord& part, double volts);

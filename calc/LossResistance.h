#pragma once

/// The loss resistance of a part over frequency: what its ripple current heats.

#include "calc/Curve.h"
#include "calc/PowerModel.h"

/// `PowerModel::LossResistance` in mΩ from 10 kHz to 1 MHz, with `NoValue` at points where it has none.
///
/// Y limits are the powers of ten below the smallest and above the largest value; 0.1 and 1 where no point
/// has any. Throws RunTimeError 6 or 11 at the step that goes wrong.
Curve LossResistanceOverFrequency(const PowerModel& model);

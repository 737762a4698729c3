#pragma once

/// The heating laws at all frequencies of the sweep at once, with at most one exponential a frequency.
///
/// A power of log10 X(i) is one exponential of a logarithm that is known beforehand, and all powers that do
/// not depend on frequency are taken once.

#include "calc/PowerModel.h"
#include "calc/Sweep.h"

/// kI at every frequency.
SweepValues kIOverFrequency(const PowerModel& model);

/// kV at every frequency.
SweepValues kVOverFrequency(const PowerModel& model);

/// The voltage of a rise at every frequency, without a bound: (rise/kV)^(1/S3).
SweepValues VoltageOverFrequency(const PowerModel& model, double rise);

/// The rise that a voltage bound leaves at every frequency: `rise` where the voltage of that rise is below
/// the bound, else the rise at the bound, kV·bound^S3.
SweepValues BoundedRise(const PowerModel& model, const SweepValues& volts, double rise, double bound);

/// The apparent power of a rise at every frequency: the voltage, at most the bound, times the current of the
/// rise that the bound leaves.
SweepValues ApparentPowerOverFrequency(const PowerModel& model, double rise, double bound);

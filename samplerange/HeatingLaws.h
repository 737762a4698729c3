#pragma once

/// Heating coefficients of a part: how current and voltage warm it.

#include "samplerange/CapacitanceLaws.h"

/// Writes the power data: current law, reference heat resistance, voltage law, highest
/// operating temperature.
///
/// The current law is the equivalent series resistance, ESR(f) = loss factor/(2πfC) + electrodes·(1 + f/5
/// MHz), times the heat resistance. The voltage law gives at every frequency and bias the voltage that
/// belongs to the current of 20 °C rise, current/(2πfC) with C at that bias; its power of log10 f comes as
/// close to that as it can over 10 kHz to 1 MHz. Needs the bias polynomial in `data`.
void WriteHeatingLaws(const PartDesign& part, PartValues& data);

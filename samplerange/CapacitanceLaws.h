#pragma once

/// Capacitance coefficients of a part, fitted to how its ceramic behaves.

#include "fit/PartValues.h"
#include "samplerange/PartDesign.h"

/// Writes the bias polynomial.
void WriteBiasLaw(const PartDesign& part, PartValues& data);

/// Writes the temperature polynomial.
void WriteTemperaturePolynomial(const PartDesign& part, PartValues& data);

/// Writes the peaked temperature model.
void WritePeakedModel(const PartDesign& part, PartValues& data);

/// Capacitance at a temperature without bias, relative to the one at 20 °C.
double RelativeCapacitance(const PartDesign& part, double temperatureC);

/// Capacitance at a bias in volts, relative to the one without bias, at 25 °C and by the written
/// coefficients.
double BiasedCapacitance(const PartValues& data, double volts);

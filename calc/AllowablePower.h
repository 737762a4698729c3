#pragma once

/// The largest AC load that keeps the self-heating within the permitted rise, over frequency.

#include "calc/Curve.h"
#include "calc/PowerModel.h"

#include <string_view>

/// The largest r.m.s. voltage on top of a bias: 0.354·Vr, a sine of that peak-to-peak value, up to a bias of
/// half the rated voltage; above that 0.707·(Vr - bias), a sine whose peak reaches the rated voltage.
double AllowableVoltageBound(double ratedVolts, double biasVolts);

/// The allowable load named by `yAxisName` ("Current", "Voltage", "Apparent Power" or "Effective Power"; any
/// other has no points) from 10 kHz to 1 MHz at a permitted rise in °C, with `ExtraValue` the largest.
///
/// Y limits are the powers of ten below the smallest and above the largest load; 0.1 and 1 for loads of 0.
/// Throws RunTimeError 5, 6 or 11 at the step that goes wrong.
Curve AllowableLoad(const PowerModel& model, double voltageBound, double permittedRise,
                    std::string_view yAxisName);

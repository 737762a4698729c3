#pragma once

/// The largest AC load that keeps the self-heating within the permitted rise, over frequency.

#include "calc/Curve.h"
#include "calc/PowerModel.h"
#include "calc/Quantities.h"

/// The largest r.m.s. voltage on top of a bias: 0.354·Vr, a sine of that peak-to-peak value, up to a bias of
/// half the rated voltage; above that 0.707·(Vr - bias), a sine whose peak reaches the rated voltage.
double AllowableVoltageBound(double ratedVolts, double biasVolts);

/// The allowable load, a current, r.m.s. voltage, apparent or effective power, from 10 kHz to 1 MHz at a
/// permitted rise in °C, with `ExtraValue` the largest.
///
/// Y limits are the powers of ten below the smallest and above the largest load; 0.1 and 1 for loads of 0.
/// Throws RunTimeError 5 for a quantity that is no load, and 5, 6 or 11 at the step that goes wrong.
Curve AllowableLoad(const PowerModel& model, double voltageBound, double permittedRise, Quantity load);

/// The allowable loads of one part at one frequency.
struct AllowableLoads
{
    double Arms;
    double Vrms;
    double VoltAmperes;
    double Watts;
};

/// All four at one frequency, by the laws of `AllowableLoad`. Throws RunTimeError 5, 6 or 11.
AllowableLoads AllowableLoadsAt(const PowerModel& model, double voltageBound, double permittedRise,
                                double frequencyHz);

/// One of them. Throws as `AllowableLoad`.
double AllowableLoadAt(const PowerModel& model, double voltageBound, double permittedRise, Quantity load,
                       double frequencyHz);

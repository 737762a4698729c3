#pragma once

/// Self-heating of a part as a function of its AC load, or of frequency at a fixed load.

#include "calc/Curve.h"
#include "calc/ParameterLimit.h"
#include "calc/PowerModel.h"
#include "calc/Quantities.h"

#include <variant>

/// Highest rise of every temperature-rise curve, in °C.
inline constexpr double RiseCeiling = 80;

/// The voltage bound of the temperature rise: r.m.s. of a sine whose peak-to-peak value is the rated voltage.
inline constexpr double RiseVoltageBound = 0.3536;

/// Rise over a load, a current, r.m.s. voltage, apparent or effective power, that grows from 0 to where the
/// rise is 80 °C, or to the voltage bound.
///
/// Throws RunTimeError 5 for a quantity that is no load, and 5, 6 or 11 at the step that goes wrong.
Curve RiseOverLoad(const PowerModel& model, double ratedVolts, double frequencyHz, Quantity load);

/// Rise over frequency at a fixed load; or why that load is refused: it is below 0 or heats the part above 80
/// °C, or lies above the voltage bound, at some frequency.
///
/// Throws RunTimeError 5 for a quantity that is no load, and 5, 6 or 11 at the step that goes wrong.
std::variant<Curve, ParameterRefusal> RiseOverFrequency(const PowerModel& model, double ratedVolts,
                                                        Quantity load, float parameter);

/// The rise in °C of one load, in Arms, Vrms, VA or W, at one frequency. It knows no bounds.
///
/// Throws RunTimeError 5 for a quantity that is no load, and 5, 6 or 11 at the step that goes wrong.
double RiseAt(const PowerModel& model, Quantity load, double value, double frequencyHz);

#pragma once

/// Self-heating of a part as a function of its AC load, or of frequency at a fixed load.

#include "calc/Calculate.h"
#include "calc/Curve.h"
#include "calc/PowerModel.h"

#include <string_view>
#include <variant>

/// Highest rise of every temperature-rise curve, in °C.
inline constexpr double RiseCeiling = 80;

/// The voltage bound of the temperature rise: r.m.s. of a sine whose peak-to-peak value is the rated voltage.
inline constexpr double RiseVoltageBound = 0.3536;

/// Rise over a load that grows from 0 to where the rise is 80 °C, or to the voltage bound. The load is named
/// by `xAxisName`: "Current", "Voltage", "Apparent Power" or "Effective Power"; any other has no points.
///
/// Throws RunTimeError 5, 6 or 11 at the step that goes wrong.
Curve RiseOverLoad(const PowerModel& model, double ratedVolts, double frequencyHz,
                   std::string_view xAxisName);

/// Rise over frequency at a fixed load, named by `parameterName`; or why that load is refused: it is below 0
/// or heats the part above 80 °C, or above the voltage bound, at some frequency.
///
/// Throws RunTimeError 5, 6 or 11 at the step that goes wrong.
std::variant<Curve, ParameterRefusal> RiseOverFrequency(const PowerModel& model, double ratedVolts,
                                                        std::string_view parameterName, float parameter);

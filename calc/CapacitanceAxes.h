#pragma once

/// Default axes of the capacitance charts.

#include "calc/Curve.h"
#include "calc/Quantities.h"

/// Limits around a capacitance curve whose extreme stored values are given.
///
/// X: the temperature ranges of the characteristics are widened to round limits, any other range stays.
/// Y: a capacitance change has steps of 10 %; for a capacitance each limit has the step of its own power of
/// ten. `YMax` lies one step above the step that holds the largest value, so that 20 % gets 30; a negative
/// largest value is rounded towards zero. `YMin` is rounded down. A limit of 1 or more is a whole number;
/// below 1 in magnitude it is a multiple of 0.1, 0.01, and so on; a limit of 0 pF stays 0.
///
/// Throws RunTimeError 5 for another quantity.
AxisLimits SetCapacitanceAxes(float xMax, float xMin, float largestY, float smallestY, Quantity y);

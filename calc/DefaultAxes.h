#pragma once

/// Default axes of the linear temperature-rise charts, and of what is drawn over frequency on two logarithmic
/// axes.

#include "calc/Curve.h"

/// Limits that leave room above the largest values: `XMax` is the next whole number above the largest X,
/// `YMax` the next multiple of ten above the largest Y, or 100 from a largest Y of 75 on. The minima stay.
///
///     SetDefaultAxes(3.0F, 0, 74.9F, 0)   // {.XMax = 4, .YMax = 80, .XMin = 0, .YMin = 0}
AxisLimits SetDefaultAxes(float largestX, float xMin, float largestY, float yMin);

/// X limits of 10 kHz and 1 MHz, and for Y the powers of ten above the largest and below the smallest value;
/// 1 and 0.1 for a smallest of 0 or less.
///
///     LogarithmicAxes(800, 45)   // {.XMax = 1e6, .YMax = 1000, .XMin = 1e4, .YMin = 10}
///
/// Throws RunTimeError 6 for a limit that does not fit a single.
AxisLimits LogarithmicAxes(float largestY, float smallestY);

/// The multiple of ten above a value of zero or more: 10 for 0, 80 for 74.9, 90 for 80.
float NextTenAbove(float value);

#pragma once

/// Into how many divisions the grid splits a linear axis.

#include <cstdint>
#include <string_view>

/// Divisions of the X axis: 5 for a range that the user has set, for temperature rise and for DC voltage;
/// one per 25 degrees for temperature, to the nearest whole number with halves to even; else 0.
int GetXDivisions(std::int16_t chartType, float xMax, float xMin, bool rescaled);

/// Divisions of the Y axis: 5 for a range that the user has set and for "Capacitance"; 8 or 10 for
/// temperature rise, over "Frequency" or a load; for "Capacitance Change" one per 5 % up to a span of 20 %,
/// else one per 10 %, to the nearest whole number with halves to even; else 0.
int GetYDivisions(std::int16_t chartType, std::string_view xAxisName, std::string_view yAxisName, float yMax,
                  float yMin, bool rescaled);

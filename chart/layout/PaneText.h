#pragma once

/// What the status pane of a line tells about its conditions.

#include "calc/ChartRecord.h"
#include "calc/Quantities.h"

/// The conditions of a line in parentheses, numbers as number text, for example of a temperature rise over
/// current "(5[V],50[°C/W],100[kHz],25[°C])".
///
/// A temperature rise over frequency ends with parameter value and unit; allowable power begins with the
/// largest value of the curve and its unit. Throws RunTimeError 5 for a name without a unit.
std::string PaneText(const ChartRecord& line, std::string_view degreeSign = defaultDegreeSign);

/// The largest value of a curve as panes and pages show it, at most three decimals; a zero, also a rounded
/// one, reads "0".
std::string LargestValueText(float value);

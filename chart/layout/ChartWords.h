#pragma once

/// A chart told in words, for those who do not see it.

#include "chart/layout/ChartView.h"

#include <cstddef>
#include <string>

/// Both axes with their ranges and units, for example
/// "X axis: Current 0[Arms] to Current 12[Arms]. Y axis: Temperature Rise 0[°C] to Temperature Rise 100[°C]."
std::string AxesInWords(const ChartView& view);

/// A line by its number in the window, part number, conditions and values at both ends of the X axis and at
/// its quarters, where the line has one; for example "No.1: PART (12[V]). Temperature 25[°C]: 9.4[uF]; ...".
std::string LineInWords(const ChartView& view, const ChartRecord& line, std::size_t number,
                        const std::string& partNum);

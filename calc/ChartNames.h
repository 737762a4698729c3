#pragma once

/// The names of chart types, and the caption that names a chart.

#include "calc/ChartStore.h"

#include <string>
#include <string_view>

/// The chart type number of a chart type name; 0 for any other text.
std::int16_t GetChartTypeNumber(std::string_view name);

/// "Allowable power(Frequency,Current)": the caption that a chart window bears and is found by. Throws
/// RunTimeError 5 for a number that is no chart type.
std::string ChartCaption(const ChartKey& chart);

/// The chart that a caption names, split at the first "(", "," and ")".
ChartKey ChartOfCaption(std::string_view caption);

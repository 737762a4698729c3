#pragma once

/// What of a judged part goes into a chart: a chart type that it has data for, and the conditions to start
/// from.

#include "find/FoundPart.h"
#include "find/OperatingPoint.h"
#include "selection/ConditionsOf.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// The most lines of a chart.
inline constexpr std::size_t MostToPlot = 6;

/// The chart type that is asked for, or the first one that the part has data for.
std::int16_t ChartTypeFor(const PartRecord& part, int asked);

bool IsHeating(std::int16_t chartType);

/// Where in the ranges of a point a chart of the part starts from: where the rise is largest for the charts
/// of heating, else where the capacitance is least; at the upper ends where neither is told.
OperatingPoint StartOf(const FoundPart& part, OperatingPoint at, std::int16_t chartType);

/// The conditions of a point as numbers; those that were not given stay as the part leaves them.
std::vector<TakenCondition> ConditionsOf(const OperatingPoint& at);

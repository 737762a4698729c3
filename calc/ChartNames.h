#pragma once

/// The names of chart types and parameters, and the caption that names a chart.

#include "calc/ChartStore.h"

#include <array>
#include <string>
#include <string_view>

/// Captions of the chart type buttons by chart type number.
inline constexpr std::array<std::string_view, 4> ChartTypeNames = {
    "Temperature Rise Characteristics",
    "Allowable power",
    "Capacitance-Temperature Characteristics",
    "Capacitance-DC Voltage Characteristics",
};

/// Captions of the parameter buttons by parameter number. Mind the order: axis lists name apparent
/// before effective power.
inline constexpr std::array<std::string_view, 4> ParameterNames = {
    "Current",
    "Voltage",
    "Effective Power",
    "Apparent Power",
};

/// True for the chart type numbers 0 to 3.
constexpr bool HasChartTypeName(std::int16_t chartType)
{
    return chartType >= 0 && static_cast<std::size_t>(chartType) < ChartTypeNames.size();
}

/// The chart type number of a chart type name; 0 for any other text.
std::int16_t GetChartTypeNumber(std::string_view name);

/// "Allowable power(Frequency,Current)": the caption that a chart window bears and is found by. The chart
/// type must be one of the four.
std::string ChartCaption(const ChartKey& chart);

/// The chart that a caption names, split at the first "(", "," and ")".
ChartKey ChartOfCaption(std::string_view caption);

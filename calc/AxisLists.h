#pragma once

/// The axes that each chart type offers.

#include <cstdint>
#include <span>
#include <string_view>

/// X and Y axis texts of a chart type, the first of each being the one shown first.
struct AxisLists
{
    std::span<const std::string_view> XAxes;
    std::span<const std::string_view> YAxes;
};

/// The lists of a chart type; empty lists for a number outside 0 to 3.
AxisLists AxisListsOf(std::int16_t chartType);

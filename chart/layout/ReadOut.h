#pragma once

/// What a chart shows at the mouse pointer.

#include "chart/layout/ChartView.h"

#include <string>

/// X name, value and unit at a position of the plot area, for example "Frequency 300.5[kHz]".
std::string XReadOut(const ChartView& view, double xPosition);

/// Y name, value and unit at a position of the plot area.
std::string YReadOut(const ChartView& view, double yPosition);

/// The line's own Y with its unit at an X position, between its placed points; "-" where it has no point.
std::string LineReadOut(const ChartView& view, const ChartRecord& line, double xPosition);

#pragma once

/// The chart of a row as SVG that stands within a page.

#include "board/BomChart.h"

#include <string>

/// One "svg" element in UTF-8, with nothing to load, to run or to follow.
std::string SvgOf(const BomChart& chart);

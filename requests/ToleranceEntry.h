#pragma once

/// Tolerances of capacitance as they are typed: "10", "±10%", "-20/+80".

#include "find/OperatingPoint.h"

#include <string_view>

/// Percentages down and up, either way alike where there is but one. Throws RequestError that bears the key
/// for a text that is no such tolerance.
///
///     ToleranceOf("10%")        // {10, 10}
///     ToleranceOf("-20/+80")    // {20, 80}
CapacitanceTolerance ToleranceOf(std::string_view typed, std::string_view key = "tolerance");

#pragma once

/// A fit's report for scripts.

#include "ownparts/FittedPart.h"

#include <string>

/// One JSON object: `part`, `groups`, `warnings`, and `points` in the order of the measurements. Values are
/// those of the part table, by their names in the data file.
std::string JsonOf(const FittedPart& fitted);

#pragma once

/// The verdicts on a board as CSV.

#include "board/BomCheck.h"

#include <string>

/// The columns of the bill as they are, then those of the verdict, the figures of the part, and what passes
/// in its place: a row a judged item, then those that are skipped or not fitted. Separated by commas,
/// whatever the bill is.
std::string BomCsv(const CheckedBom& bom, const BomSettings& settings);

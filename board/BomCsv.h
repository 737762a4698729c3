#pragma once

/// The verdicts on a board as CSV.

#include "board/BomVerdict.h"

#include <string>

/// The columns of the bill as they are, then those of the verdict: a row a judged item. Separated by commas,
/// whatever the bill is.
std::string BomCsv(const JudgedBom& bom, const BomTable& bill, const BomSettings& settings);

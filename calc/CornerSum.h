#pragma once

/// The least capacitance of parts in parallel over ranges of bias and temperature.
///
/// Where one part has its least another may have plenty, so that the least of the sum is not the sum of the
/// leasts. It is looked for on nodes, those at the peaks of the parts among them, and from the best of these.

#include "calc/Box.h"
#include "partdata/PartRecord.h"

#include <vector>

/// A part, and how much of its capacitance the sum has: how many of it, less what a tolerance takes.
struct WeighedPart
{
    const PartRecord* Part = nullptr;
    double Weight = 1;
};

/// The least sum of the capacitances in pF, and where it occurs; a part without a model adds nothing. Throws
/// RunTimeError 5, 6 or 11 at the step that goes wrong.
Extreme LeastSumIn(const std::vector<WeighedPart>& parts, const ConditionBox& box, CodeView view);

#pragma once

/// Which parts do what is wanted at an operating point.

#include "find/FoundPart.h"
#include "find/LeftOut.h"
#include "find/Wants.h"

#include <span>
#include <vector>

/// The parts that fit, and how many others could not be judged.
struct FoundParts
{
    std::vector<FoundPart> Parts;
    LeftOutCounts LeftOut;
};

/// The parts that fit the question, in the order of the candidates. Values are those of the charts: from the
/// same laws, under the same rules.
///
/// A column whose rules the part does not meet is empty. Such a part is left out, and counted, where a wanted
/// limit or the load needs the column, or where no column of capacitance or heating remains. So is one whose
/// calculation faults. A part that does not do what is wanted is left out uncounted.
///
/// The question is one that `RefuseQuestion` lets pass.
FoundParts FindParts(std::span<const PartRecord* const> candidates, const FindQuestion& question);

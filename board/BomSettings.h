#pragma once

/// How the verdicts on a board are told.

#include "find/SizeOrder.h"

#include <optional>

struct BomSettings
{
    CodeView View = CodeView::Eia;
    std::size_t NumberingOffset = 0;
    /// A reserve below so many percent is a warning.
    float WarnPercent = 10;
    bool IsSuggesting = false;
    /// Parts that are not in the range by their numbers are taken by the values that the bill tells.
    bool IsByValue = false;
    /// Suggestions may be as large as this.
    std::optional<PartSize> LargestSize = {};
    /// In the order of the bill rather than the worst first.
    bool IsByLine = false;
};

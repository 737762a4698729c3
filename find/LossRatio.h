#pragma once

/// The heating of one part by a current over that of another, at any frequency.

#include "calc/Box.h"
#include "partdata/PartRecord.h"

#include <optional>

/// Two parts that a current heats.
struct LossPair
{
    const PartRecord& Part;
    const PartRecord& Original;
    /// In °C/W, the same for both; each part's own where it is left out.
    std::optional<float> HeatResistance = {};
};

/// The largest ratio of their heating over all frequencies of the charts and a range of ambient temperatures,
/// and where it occurs. Throws RunTimeError 5, 6 or 11 for a calculation that faults.
Extreme MostLossRatio(const LossPair& pair, const ConditionRange& ambientC);

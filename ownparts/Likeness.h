#pragma once

/// What a part that is much like a measured one lends where there are gaps.

#include "fit/CurrentFit.h"
#include "fit/PeakFit.h"
#include "ownparts/MeasuredPart.h"
#include "partdata/PartRecord.h"

#include <optional>

/// Points that were not measured: those of the like part, scaled to what was measured beside the gap. Bias
/// beyond the last that was measured, each tenth of the rated voltage or closer; temperatures without bias
/// more than 5 °C outside of what was measured, each 20 °C. Their line is 0. None where there is no gap, and
/// no point without bias to scale to.
struct Borrowed
{
    std::vector<MeasuredCapacitance> OverBias;
    std::vector<MeasuredCapacitance> OverTemperature;
};

Borrowed BorrowPoints(const MeasuredPart& part, const PartRecord& like);

/// What bias does to the bell of a like part.
PeakByBias BorrowPeakByBias(const PartRecord& like);

/// The whole current law of a like part times how much more the measured one heats at what was measured.
CurrentFit BorrowCurrentLaw(std::span<const MeasuredRise> rises, const PartRecord& like);

/// A current law that was told at one ambient temperature, with the like part's changes over temperature,
/// each relative to its own term.
CurrentFit BorrowAmbient(CurrentFit fit, double ambientC, const PartRecord& like);

/// Why a part cannot lend anything to another of this characteristic; nothing where it can.
std::optional<std::string> RefuseLike(const MeasuredPart& part, const PartRecord& like);

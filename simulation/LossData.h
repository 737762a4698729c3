#pragma once

/// Whether the heating data of a part gives a loss resistance.

#include "partdata/PartRecord.h"

#include <cstdint>

enum class LossData : std::uint8_t
{
    Present,
    /// The part has no heating data.
    Missing,
    /// It has, but its law gives no resistance above 0 at some frequency and temperature of its range, or has
    /// no range.
    Unusable,
};

/// Judges the law from 10 kHz to 1 MHz and from 20 °C to the upper temperature. Throws RunTimeError 6 or 11.
LossData LossDataOf(const PartRecord& part);

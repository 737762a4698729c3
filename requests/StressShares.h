#pragma once

/// Which frequencies of a current heat.

#include "requests/StressReport.h"

#include <vector>

/// Where the part data stand to a frequency.
enum class DataReach
{
    Below,
    Inside,
    Above,
};

/// Lines that a picture shows as one: those of a twentieth of a decade.
struct StressShare
{
    /// Where they lie, by what they heat.
    double Hertz;
    /// Of the rise, or of the square of the current.
    double Share;
    DataReach Reach;
};

/// A current's shares, upwards; together 1.
struct StressShares
{
    /// The part whose rise is shared; null for the square of the current.
    const StressedPart* Of = nullptr;
    std::vector<StressShare> Lines = {};
    /// What no line carries, above `HighestLineHz`.
    double Unresolved = 0;

    /// All of one reach; what no line carries lies above.
    double SumOf(DataReach reach) const;
};

/// The shares of the rise of the report's only part; those of the square of the current where there are more
/// or none, or where the part has no rise at a frequency that is used.
StressShares StressSharesOf(const StressReport& report);

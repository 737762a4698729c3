#pragma once

/// What a circuit wants of its capacitors; what is left out is not asked.

#include "find/OperatingPoint.h"

#include <optional>

/// The most parts in parallel.
inline constexpr int MostInParallel = 100;

/// Equal parts in parallel, which share currents and powers equally and bear the same voltage.
struct Bank
{
    /// As few as will do; else `Count`.
    bool IsFewest = false;
    /// 1 to `MostInParallel`.
    int Count = 1;
};

/// Limits on what a part, or a bank of it, does at the operating point.
struct Wants
{
    /// Of the whole bank, in pF.
    std::optional<float> LeastCapacitance = {};
    /// Of the whole bank at its own temperature under the load, in pF.
    std::optional<float> LeastWarmCapacitance = {};
    /// Percent of the nominal capacitance, in the JIS view of the one at 20 °C.
    std::optional<float> LeastLeft = {};
    /// The rise in °C that a load may bring, in place of the recommended one.
    std::optional<float> MostRise = {};
    /// Of a single part, in mΩ.
    std::optional<float> MostLossResistance = {};
    /// A size is asked for: a part without measures cannot be judged.
    bool NeedsMeasures = false;
    /// A single part where it is left out.
    std::optional<Bank> Parallel = {};
};

/// What is asked of the range.
struct FindQuestion
{
    OperatingPoint At = {};
    Wants Wanted = {};
};

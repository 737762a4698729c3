#pragma once

/// A bank of parts in parallel at its operating point, or anywhere in ranges of it: what is asked of it.

#include "find/OperatingPoint.h"

#include <optional>
#include <vector>

/// Equal pieces of a bank.
struct BankPiece
{
    const PartRecord* Part = nullptr;
    /// How many, from 1 on.
    int Count = 1;
    /// How far the capacitance may lie from what the laws tell.
    CapacitanceTolerance Tolerance = {};
    /// The rise in °C that is permitted in place of the recommended one.
    std::optional<float> MostRise = {};
};

/// A sine of the ripple current that all pieces share.
struct RippleCurrent
{
    /// A range only for the one sine of a question.
    ConditionRange Kilohertz = 0;
    float Arms = 0;
};

/// At least one piece, and at least one ripple current.
struct BankQuestion
{
    std::vector<BankPiece> Pieces;
    /// Bias, ambient temperature, heat resistance and view; its frequency and load do not count.
    OperatingPoint At = {};
    std::vector<RippleCurrent> Ripple;

    /// True when every condition has one value.
    bool IsPoint() const
    {
        const auto& kilohertz = Ripple.front().Kilohertz;
        return At.BiasVolts.IsPoint() && At.AmbientC.IsPoint() && kilohertz.IsPoint();
    }
};

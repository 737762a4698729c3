#pragma once

/// A bank of parts in parallel at its operating point: what is asked of it.

#include "find/OperatingPoint.h"

#include <vector>

/// Equal pieces of a bank.
struct BankPiece
{
    const PartRecord* Part = nullptr;
    /// How many, from 1 on.
    int Count = 1;
    /// The capacitance lies within so many percent of what the laws tell, 0 to `MostTolerance`.
    double TolerancePercent = 0;
};

inline constexpr float MostTolerance = 99;

/// A sine of the ripple current that all pieces share.
struct RippleCurrent
{
    float Kilohertz = 0;
    float Arms = 0;
};

/// At least one piece, and at least one ripple current.
struct BankQuestion
{
    std::vector<BankPiece> Pieces;
    /// Bias, ambient temperature, heat resistance and view; its frequency and load do not count.
    OperatingPoint At = {};
    std::vector<RippleCurrent> Ripple;
};

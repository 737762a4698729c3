#pragma once

/// What a bank should not be built for, though it can be worked out.

#include "simulation/Bank.h"

#include <cstddef>
#include <cstdint>
#include <vector>

enum class BankWarningKind : std::uint8_t
{
    /// Hotter than permitted.
    Rise,
    /// Hotter than permitted within the tolerances only.
    WorstRise,
    /// More ripple voltage than the part may have on top of the bias.
    Ripple,
    /// An inductance of 1 nH, which no part is without, has a tenth of the piece's reactance or more.
    Inductance,
    /// The rise is off by more than 5 % where each piece has the capacitance of its own temperature.
    Warmth,
};

struct BankWarning
{
    BankWarningKind Kind;
    std::size_t Piece;
    /// What is too large: °C, Vrms, or the lowest such frequency in kHz.
    double Value;
    /// What is permitted, in the same unit; 0 for a frequency, the rise without warmth beside one with it.
    double Permitted;
};

/// All warnings at a point, piece by piece.
std::vector<BankWarning> WarningsOf(const BankAnswer& answer);

/// All warnings of a question with its answer. Over ranges these are the warnings at the places where each
/// piece comes nearest to a limit. Throws RunTimeError 5, 6 or 11 for a calculation that faults.
std::vector<BankWarning> WarningsOf(const BankQuestion& question, const BankAnswer& answer);

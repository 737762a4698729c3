#include "simulation/BankWarnings.h"

#include "find/PointColumns.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

/// True for what is above, and not by rounding alone.
static bool IsAbove(double value, double permitted)
{
    return value > permitted * (1 + RoundingShare);
}

/// The lowest frequency in kHz from which on an inductance may not be left out; nothing where there is none.
static std::optional<double> InductiveFrequency(const PieceOfBank& piece)
{
    constexpr double henries = 1e-9;
    constexpr double mostShare = 0.1;
    constexpr double hertzPerKilohertz = 1e3;
    constexpr double faradsPerPicoFarad = 1e-12;
    std::optional<double> lowest;
    for (const PieceAtFrequency& at : piece.Frequencies)
    {
        const double omega = 2 * std::numbers::pi * at.Kilohertz * hertzPerKilohertz;
        const double share = omega * omega * piece.PicoFarads * faradsPerPicoFarad * henries;
        if (share > mostShare)
        {
            lowest = std::min(lowest.value_or(at.Kilohertz), at.Kilohertz);
        }
    }
    return lowest;
}

static void AddWarnings(std::vector<BankWarning>& warnings, const BankAnswer& answer, std::size_t index)
{
    constexpr double mostWarmShare = 0.05;
    const PieceOfBank& piece = answer.Pieces[index];
    const auto add = [&](BankWarningKind kind, double value, double permitted)
    { warnings.push_back({.Kind = kind, .Piece = index, .Value = value, .Permitted = permitted}); };
    if (IsAbove(piece.Rise, piece.PermittedRise))
    {
        add(BankWarningKind::Rise, piece.Rise, piece.PermittedRise);
    }
    else if (IsAbove(piece.WorstRise, piece.PermittedRise))
    {
        add(BankWarningKind::WorstRise, piece.WorstRise, piece.PermittedRise);
    }
    if (IsAbove(answer.Vrms, piece.VoltageBound))
    {
        add(BankWarningKind::Ripple, answer.Vrms, piece.VoltageBound);
    }
    if (const auto kilohertz = InductiveFrequency(piece))
    {
        add(BankWarningKind::Inductance, *kilohertz, 0);
    }
    if (piece.WarmRise && std::abs(*piece.WarmRise - piece.Rise) > mostWarmShare * piece.Rise)
    {
        add(BankWarningKind::Warmth, *piece.WarmRise, piece.Rise);
    }
}

std::vector<BankWarning> WarningsOf(const BankAnswer& answer)
{
    std::vector<BankWarning> warnings;
    for (std::size_t piece = 0; piece < answer.Pieces.size(); ++piece)
    {
        AddWarnings(warnings, answer, piece);
    }
    return warnings;
}

#include "simulation/BankWarnings.h"

#include "calc/CornerCapacitance.h"
#include "calc/Quantities.h"
#include "find/PointColumns.h"
#include "simulation/BankRanges.h"

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
        const double omega = 2 * std::numbers::pi * at.Kilohertz.Low * hertzPerKilohertz;
        const double share = omega * omega * piece.PicoFarads * faradsPerPicoFarad * henries;
        if (share > mostShare)
        {
            lowest = std::min<double>(lowest.value_or(at.Kilohertz.Low), at.Kilohertz.Low);
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

// ---- In ranges ----

/// Where a piece has its most capacitance at the highest frequency.
static Place MostInductiveAt(const BankQuestion& question, std::size_t piece)
{
    const auto extremes = CapacitanceExtremesIn(
        *question.Pieces[piece].Part,
        {.BiasVolts = question.At.BiasVolts, .AmbientC = question.At.HeatingAmbientC()}, question.At.View);
    Place place = extremes->Most.At;
    place.Hertz = double{question.Ripple.front().Kilohertz.High} * KindOf(Quantity::Frequency).StoredPerShown;
    return place;
}

/// Takes a warning unless there is one of its kind that tells of more.
static void TakeWorst(std::vector<BankWarning>& warnings, const BankWarning& taken)
{
    const auto excessOf = [](const BankWarning& warning)
    { return std::abs(warning.Value - warning.Permitted); };
    const auto known = std::ranges::find(warnings, taken.Kind, &BankWarning::Kind);
    if (known == warnings.end())
    {
        warnings.push_back(taken);
    }
    else if (excessOf(taken) > excessOf(*known))
    {
        *known = taken;
    }
}

static std::vector<BankWarning> WarningsOn(const BankQuestion& question, const BankAnswer& answer,
                                           std::size_t index)
{
    const PieceOfBank& piece = answer.Pieces[index];
    std::vector<BankWarning> warnings;
    for (const Place& place :
         {piece.MarginAt, piece.WorstMarginAt, piece.BoundAt, piece.RiseAt, MostInductiveAt(question, index)})
    {
        for (const BankWarning& warning : WarningsOf(BankAt(QuestionAt(question, place))))
        {
            if (warning.Piece == index)
            {
                TakeWorst(warnings, warning);
            }
        }
    }
    std::ranges::sort(warnings, {}, &BankWarning::Kind);
    const bool isTooHot = !warnings.empty() && warnings.front().Kind == BankWarningKind::Rise;
    if (isTooHot)
    {
        std::erase_if(warnings,
                      [](const BankWarning& warning) { return warning.Kind == BankWarningKind::WorstRise; });
    }
    return warnings;
}

std::vector<BankWarning> WarningsOf(const BankQuestion& question, const BankAnswer& answer)
{
    if (question.IsPoint())
    {
        return WarningsOf(answer);
    }
    std::vector<BankWarning> warnings;
    for (std::size_t piece = 0; piece < answer.Pieces.size(); ++piece)
    {
        const auto ofPiece = WarningsOn(question, answer, piece);
        warnings.insert(warnings.end(), ofPiece.begin(), ofPiece.end());
    }
    return warnings;
}

#pragma once

/// How parts in parallel share a ripple current, how hot each runs, and what all together are.
///
/// Each piece is its capacitance and its loss resistance in series, Y = 1/(R + 1/(jωC)), by the laws of the
/// charts at the bias and the ambient temperature; a piece bears I·|Y / sum of all Y|. There is no inductance
/// in the data of parts. Several frequencies heat as the sum of squares. Over ranges of conditions each value
/// is the worst of all their combinations.

#include "calc/Box.h"
#include "simulation/BankQuestion.h"

#include <optional>
#include <vector>

/// A piece at one frequency.
struct PieceAtFrequency
{
    ConditionRange Kilohertz = 0;
    /// In mΩ.
    double LossResistance = 0;
    double Arms = 0;
};

/// One of the equal pieces. Currents of several frequencies are roots of the sum of squares.
struct PieceOfBank
{
    double PicoFarads = 0;
    /// At the temperature that the rise brings; nothing where the part's characteristic does not have it.
    std::optional<double> WarmPicoFarads = {};
    double Arms = 0;
    /// In °C, as what is permitted for the part and what is left of it.
    double Rise = 0;
    double PermittedRise = 0;
    double Margin = 0;
    /// The rise with each piece's capacitance at its own temperature; nothing where one has none there.
    std::optional<double> WarmRise = {};
    /// The largest r.m.s. voltage on top of the bias, in V.
    double VoltageBound = 0;
    /// With this piece at the upper end of its tolerance and all others at the lower end of theirs.
    double WorstArms = 0;
    double WorstRise = 0;
    double WorstMargin = 0;
    /// The temperature that the worst rise brings it to, in °C.
    double WorstBody = 0;
    /// Where each of these occurs.
    Place LeastAt = {};
    Place RiseAt = {};
    Place MarginAt = {};
    Place WorstRiseAt = {};
    Place WorstMarginAt = {};
    /// Where the ripple voltage comes nearest to its bound.
    Place BoundAt = {};
    /// In the order of the ripple currents.
    std::vector<PieceAtFrequency> Frequencies;
};

/// The whole bank at one frequency.
struct BankAtFrequency
{
    ConditionRange Kilohertz = 0;
    double PicoFarads = 0;
    /// In mΩ.
    double LossResistance = 0;
    double Vrms = 0;
};

struct BankAnswer
{
    /// At the lowest frequency.
    double PicoFarads = 0;
    /// The sum of all capacitances at the lower ends of their tolerances.
    double LeastPicoFarads = 0;
    Place LeastAt = {};
    /// Root of the sum of squares.
    double Vrms = 0;
    /// In the order of the question.
    std::vector<PieceOfBank> Pieces;
    std::vector<BankAtFrequency> Frequencies;
};

/// The bank of a question without ranges that the rules let pass. Throws RunTimeError 5, 6 or 11 for a
/// calculation that faults.
BankAnswer BankAt(const BankQuestion& question);

/// The same without the rises by warm capacitances, which take longer than all the rest.
BankAnswer BankWithoutWarmRise(const BankQuestion& question);

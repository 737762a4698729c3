#pragma once

/// A net of a board as a bank of parts: what all together are at worst, and what each bears of a current.

#include "board/BomQuestion.h"

#include <optional>
#include <string>
#include <vector>

/// One item on the net.
struct NetPiece
{
    const PartRecord* Part = nullptr;
    const BomQuestion* Question = nullptr;
    /// All parts of the item.
    int Count = 1;
};

/// What one part of a piece bears at worst, within the tolerances and anywhere in the net's box.
struct NetShare
{
    double Arms = 0;
    /// In °C; the largest, and where it occurs.
    double Rise = 0;
    Place RiseAt;
    /// What is least left of the permitted rise, and the share of that which is left there.
    double Margin = 0;
    double Reserve = 0;
    double PermittedRise = 0;
    Place MarginAt;
    /// The highest temperature, in °C.
    double Body = 0;
    /// Where it is above what the part may have on top of the bias: the most ripple voltage in Vrms.
    std::optional<double> RippleAbove = {};
};

struct NetAnswer
{
    /// In pF; 0 where not all parts are known.
    double Nominal = 0;
    /// Of the sum, with all tolerances; nothing where `Refusal` tells why.
    std::optional<double> Least;
    Place LeastAt;
    /// "bias above the rated voltage of ..."; the net fails.
    std::string Refusal;
    /// A piece without data or outside them; the net is unknown.
    std::string Unknown;
    /// Of the current that is shared, in Arms; nothing where none is.
    std::optional<double> Arms;
    /// The lowest frequency at which an inductance that parts have would decide, in kHz.
    std::optional<double> InductiveKilohertz;
    /// In the order of the pieces; empty where nothing is shared.
    std::vector<NetShare> Shares;
};

/// Works out the net of at least one piece.
NetAnswer NetOf(const std::vector<NetPiece>& pieces);

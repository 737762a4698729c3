#pragma once

/// What is refused of a bank: by the rules that parts are found under.

#include "find/LeftOut.h"
#include "find/QuestionRules.h"
#include "simulation/BankQuestion.h"

#include <cstddef>
#include <optional>

/// Why a piece cannot be judged.
struct PieceRefusal
{
    std::size_t Piece = 0;
    LeftOutReason Reason = LeftOutReason::CannotBeCalculated;
};

/// The first refusal of conditions that no part permits, or nothing.
std::optional<QuestionRefusal> RefuseConditions(const BankQuestion& question);

/// The first piece that has not both kinds of data, that the bias or the ambient temperature is not permitted
/// for, that may not get any hotter, or that has no capacitance above 0 or no loss resistance at a frequency;
/// or nothing. The conditions are some that `RefuseConditions` lets pass.
std::optional<PieceRefusal> RefusePieces(const BankQuestion& question);

#include "simulation/BankRules.h"

#include "find/PartFinder.h"

#include <algorithm>
#include <array>
#include <limits>

namespace
{
/// What a search would ask to have capacitance, loss and permitted rise of a part told, whatever they are.
FindQuestion SearchFor(const BankQuestion& question, const RippleCurrent& ripple)
{
    FindQuestion search{.At = question.At, .Wanted = {}};
    search.At.Kilohertz = ripple.Kilohertz;
    search.At.Load = AcLoad{.Kind = Quantity::Current, .Value = 0};
    search.Wanted.LeastCapacitance = 0;
    search.Wanted.MostLossResistance = std::numeric_limits<float>::max();
    return search;
}

std::optional<LeftOutReason> RefusePart(const PartRecord& part, const FindQuestion& search)
{
    const std::array candidates = {&part};
    const auto found = FindParts(candidates, search);
    const bool conducts =
        !found.Parts.empty() && found.Parts.front().Known(FoundColumn::EffectiveCapacitance) > 0;
    return conducts ? std::nullopt
                    : std::optional(found.LeftOut.First().value_or(LeftOutReason::CannotBeCalculated));
}
} // namespace

std::optional<QuestionRefusal> RefuseConditions(const BankQuestion& question)
{
    float largestRating = 0;
    for (const BankPiece& piece : question.Pieces)
    {
        largestRating = std::max(largestRating, piece.Part->Data[Value::RatedVoltage]);
    }
    for (const RippleCurrent& ripple : question.Ripple)
    {
        auto search = SearchFor(question, ripple);
        search.At.Load = AcLoad{.Kind = Quantity::Current, .Value = ripple.Arms};
        if (auto refusal = RefuseQuestion(search, largestRating))
        {
            return refusal;
        }
    }
    return std::nullopt;
}

std::optional<PieceRefusal> RefusePieces(const BankQuestion& question)
{
    for (std::size_t piece = 0; piece < question.Pieces.size(); ++piece)
    {
        for (const RippleCurrent& ripple : question.Ripple)
        {
            if (const auto reason = RefusePart(*question.Pieces[piece].Part, SearchFor(question, ripple)))
            {
                return PieceRefusal{.Piece = piece, .Reason = *reason};
            }
        }
    }
    return std::nullopt;
}

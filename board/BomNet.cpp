#include "board/BomNet.h"

#include "calc/Conditions.h"
#include "calc/CornerSum.h"
#include "find/KindsOfData.h"
#include "partdata/RunTimeError.h"
#include "partdata/Windows1252.h"
#include "simulation/BankRanges.h"
#include "simulation/BankRules.h"
#include "simulation/BankWarnings.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr double percent = 100;

std::string NameOf(const NetPiece& piece)
{
    return Utf8FromWindows1252(piece.Part->PartNum[static_cast<std::size_t>(piece.Question->Asked.At.View)]);
}

/// The bank law at places of the net's box.
class NetLaw
{
public:
    explicit NetLaw(const std::vector<NetPiece>& ofNet)
        : pieces(ofNet)
        , at(pieces.front().Question->Asked.At)
    {
        for (const NetPiece& piece : pieces)
        {
            const auto& ambient = piece.Question->Asked.At.AmbientC;
            at.AmbientC.Low = std::min(at.AmbientC.Low, ambient.Low);
            at.AmbientC.High = std::max(at.AmbientC.High, ambient.High);
        }
    }

    NetAnswer Answer() const
    {
        NetAnswer answer;
        for (const NetPiece& piece : pieces)
        {
            answer.Nominal += piece.Count * double{piece.Part->Data[Value::NominalCapacitance]};
        }
        answer.Refusal = Refusal();
        answer.Unknown = answer.Refusal.empty() ? WhyUnknown() : "";
        if (answer.Refusal.empty() && answer.Unknown.empty())
        {
            FindLeast(answer);
        }
        Share(answer);
        return answer;
    }

private:
    std::string Refusal() const
    {
        const auto above =
            std::ranges::find_if(pieces, [&](const NetPiece& piece)
                                 { return !IsDCBiasPermitted(at.BiasVolts.High, *piece.Part); });
        return above == pieces.end() ? "" : "bias above the rated voltage of " + NameOf(*above);
    }

    std::string WhyUnknown() const
    {
        for (const NetPiece& piece : pieces)
        {
            if (!piece.Question->HasBias)
            {
                return "no bias is given";
            }
            if (!HasCapacitanceData(*piece.Part))
            {
                return NameOf(piece) + " has no capacitance data";
            }
            for (const float ambient : {at.AmbientC.Low, at.AmbientC.High})
            {
                if (!IsClassAmbientPermitted(ambient, *piece.Part, at.View))
                {
                    return "the ambient temperature is outside the range of " + NameOf(piece);
                }
            }
        }
        return "";
    }

    void FindLeast(NetAnswer& answer) const
    {
        std::vector<WeighedPart> parts;
        for (const NetPiece& piece : pieces)
        {
            const double down = 1 - piece.Question->Asked.At.Tolerance.Down / percent;
            parts.push_back({.Part = piece.Part, .Weight = piece.Count * down});
        }
        const auto least = LeastSumIn(parts, {.BiasVolts = at.BiasVolts, .AmbientC = at.AmbientC}, at.View);
        answer.Least = least.Value;
        answer.LeastAt = least.At;
    }

    // ---- Shares ----

    BankQuestion SharedQuestion() const
    {
        BankQuestion question;
        for (const NetPiece& piece : pieces)
        {
            question.Pieces.push_back({.Part = piece.Part,
                                       .Count = piece.Count,
                                       .Tolerance = piece.Question->Asked.At.Tolerance,
                                       .MostRise = piece.Question->Asked.Wanted.MostRise});
        }
        question.At = at;
        question.At.Load.reset();
        question.Ripple = pieces.front().Question->NetRipple;
        return question;
    }

    /// None where a piece has no data of heating, or is not permitted somewhere in the box.
    void Share(NetAnswer& answer) const
    {
        double square = 0;
        for (const RippleCurrent& ripple : pieces.front().Question->NetRipple)
        {
            square += double{ripple.Arms} * ripple.Arms;
        }
        if (square <= 0)
        {
            return;
        }
        answer.Arms = std::sqrt(square);
        const auto question = SharedQuestion();
        if (answer.Refusal.empty() && answer.Unknown.empty() && !RefusePieces(question))
        {
            TakeWorstShares(answer, BankRanges(question));
            TakeWarnings(answer, WarningsOf(question, BankOf(question)));
        }
    }

    static void TakeWarnings(NetAnswer& answer, const std::vector<BankWarning>& warnings)
    {
        for (const BankWarning& warning : warnings)
        {
            if (warning.Kind == BankWarningKind::Ripple)
            {
                auto& most = answer.Shares[warning.Piece].RippleAbove;
                most = std::max(most.value_or(0), warning.Value);
            }
            else if (warning.Kind == BankWarningKind::Inductance)
            {
                auto& least = answer.InductiveKilohertz;
                least = std::min(least.value_or(warning.Value), warning.Value);
            }
        }
    }

    void TakeWorstShares(NetAnswer& answer, const BankRanges& ranges) const
    {
        for (std::size_t i = 0; i < pieces.size(); ++i)
        {
            const auto of = [i](double PieceOfBank::*told)
            { return [=](const BankAnswer& bank) { return bank.Pieces[i].*told; }; };
            const auto rise = ranges.Most(of(&PieceOfBank::WorstRise));
            const auto margin = ranges.Least(of(&PieceOfBank::WorstMargin));
            answer.Shares.push_back(
                {.Arms = ranges.Most(of(&PieceOfBank::WorstArms)).Value,
                 .Rise = rise.Value,
                 .RiseAt = rise.At,
                 .Margin = margin.Value,
                 .Reserve =
                     ranges.Least([i](const BankAnswer& bank) { return ReserveOf(bank.Pieces[i]); }).Value,
                 .PermittedRise = ranges.Least(of(&PieceOfBank::PermittedRise)).Value,
                 .MarginAt = margin.At,
                 .Body = ranges.Most(of(&PieceOfBank::WorstBody)).Value});
        }
    }

    static double ReserveOf(const PieceOfBank& piece)
    {
        return piece.PermittedRise > 0 ? piece.WorstMargin / piece.PermittedRise : -1;
    }

    const std::vector<NetPiece>& pieces;
    OperatingPoint at;
};
} // namespace

NetAnswer NetOf(const std::vector<NetPiece>& pieces)
{
    return NetLaw(pieces).Answer();
}

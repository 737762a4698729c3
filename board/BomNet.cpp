#include "board/BomNet.h"

#include "calc/Capacitance.h"
#include "calc/Conditions.h"
#include "calc/PermittedRise.h"
#include "calc/SearchBox.h"
#include "find/KindsOfData.h"
#include "partdata/RunTimeError.h"
#include "partdata/Windows1252.h"
#include "simulation/Bank.h"
#include "simulation/BankRules.h"

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

    double TotalAt(double biasVolts, double ambientC) const
    {
        double total = 0;
        for (const NetPiece& piece : pieces)
        {
            const auto point = CapacitancePointAt(*piece.Part, static_cast<float>(biasVolts),
                                                  static_cast<float>(ambientC), at.View);
            const double down = 1 - piece.Question->Asked.At.Tolerance.Down / percent;
            total += piece.Count * down * point.value_or(CapacitancePoint{}).PicoFarads;
        }
        return total;
    }

    void FindLeast(NetAnswer& answer) const
    {
        constexpr int nodes = 17;
        const auto total = [&](double bias, double ambient) { return TotalAt(bias, ambient); };
        LeastFound best;
        for (const double bias : EvenNodes(at.BiasVolts.Low, at.BiasVolts.High, nodes))
        {
            for (const double ambient : EvenNodes(at.AmbientC.Low, at.AmbientC.High, nodes))
            {
                const double value = total(bias, ambient);
                best = value < best.Value ? LeastFound{bias, ambient, value} : best;
            }
        }
        best =
            Refined(total, best, {at.BiasVolts.Low, at.BiasVolts.High}, {at.AmbientC.Low, at.AmbientC.High},
                    {(at.BiasVolts.High - at.BiasVolts.Low) / (nodes - 1),
                     (at.AmbientC.High - at.AmbientC.Low) / (nodes - 1)});
        answer.Least = best.Value;
        answer.LeastAt = {.BiasVolts = best.X, .AmbientC = best.Y};
    }

    // ---- Shares ----

    BankQuestion QuestionAt(double biasVolts, double ambientC) const
    {
        BankQuestion question;
        for (const NetPiece& piece : pieces)
        {
            const auto& tolerance = piece.Question->Asked.At.Tolerance;
            question.Pieces.push_back(
                {.Part = piece.Part,
                 .Count = piece.Count,
                 .TolerancePercent = std::min(std::max(tolerance.Down, tolerance.Up), MostTolerance)});
        }
        question.At = at;
        question.At.BiasVolts = static_cast<float>(biasVolts);
        question.At.AmbientC = static_cast<float>(ambientC);
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
        const auto heating = at.HeatingAmbientC();
        for (const double bias : {at.BiasVolts.Low, at.BiasVolts.High})
        {
            for (const float ambient : {heating.Low, heating.High})
            {
                if (!answer.Refusal.empty() || !answer.Unknown.empty() ||
                    RefusePieces(QuestionAt(bias, ambient)))
                {
                    return;
                }
            }
        }
        TakeWorstShares(answer, heating);
    }

    void TakeWorstShares(NetAnswer& answer, const ConditionRange& heating) const
    {
        constexpr int nodes = 9;
        for (const double bias : EvenNodes(at.BiasVolts.Low, at.BiasVolts.High, nodes))
        {
            for (const double ambient : EvenNodes(heating.Low, heating.High, nodes))
            {
                const auto bank = BankOf(QuestionAt(bias, ambient));
                for (std::size_t i = 0; i < bank.Pieces.size(); ++i)
                {
                    Take(answer, i, bank.Pieces[i], {.BiasVolts = bias, .AmbientC = ambient});
                }
            }
        }
    }

    void Take(NetAnswer& answer, std::size_t index, const PieceOfBank& piece, const Place& place) const
    {
        const bool isFirst = answer.Shares.size() == index;
        NetShare& share = isFirst ? answer.Shares.emplace_back() : answer.Shares[index];
        const auto& wanted = pieces[index].Question->Asked.Wanted.MostRise;
        const PermittedRise rise{.MaxC = pieces[index].Part->Data[Value::UpperTemperature], .Wanted = wanted};
        const double permitted = rise.At(place.AmbientC);
        const double margin = permitted - piece.WorstRise;
        const double body = place.AmbientC + piece.WorstRise;
        share.Body = isFirst ? body : std::max(share.Body, body);
        share.Arms = std::max(share.Arms, piece.WorstArms);
        if (isFirst || piece.WorstRise > share.Rise)
        {
            share.Rise = piece.WorstRise;
            share.RiseAt = place;
        }
        if (isFirst || margin < share.Margin)
        {
            share.Margin = margin;
            share.MarginAt = place;
        }
        const double reserve = permitted > 0 ? margin / permitted : -1;
        share.Reserve = isFirst ? reserve : std::min(share.Reserve, reserve);
        share.PermittedRise = isFirst ? permitted : std::min(share.PermittedRise, permitted);
    }

    const std::vector<NetPiece>& pieces;
    OperatingPoint at;
};
} // namespace

NetAnswer NetOf(const std::vector<NetPiece>& pieces)
{
    return NetLaw(pieces).Answer();
}

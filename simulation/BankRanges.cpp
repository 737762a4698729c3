#include "simulation/BankRanges.h"

#include "calc/CornerCapacitance.h"
#include "calc/CornerSum.h"
#include "calc/Quantities.h"
#include "calc/SearchBox.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{
constexpr int nodesASide = 9;

/// Stands for a capacitance that a piece does not have at some place.
constexpr double none = -1;

std::vector<double> NodesOf(const ConditionRange& range)
{
    return EvenNodes(range.Low, range.High, nodesASide);
}

SearchSide SideOf(const ConditionRange& range)
{
    return {.From = range.Low, .To = range.High, .Step = (range.High - range.Low) / (nodesASide - 1)};
}

bool IsEnd(double value, const ConditionRange& range)
{
    return value == range.Low || value == range.High;
}

double HertzPerKilohertz()
{
    return KindOf(Quantity::Frequency).StoredPerShown;
}
} // namespace

BankQuestion QuestionAt(const BankQuestion& question, const Place& place)
{
    BankQuestion at = question;
    at.At.BiasVolts = static_cast<float>(place.BiasVolts);
    at.At.AmbientC = static_cast<float>(place.AmbientC);
    if (auto& kilohertz = at.Ripple.front().Kilohertz; !kilohertz.IsPoint())
    {
        kilohertz = static_cast<float>(place.Hertz / HertzPerKilohertz());
    }
    return at;
}

BankRanges::BankRanges(const BankQuestion& asked)
    : question(asked)
    , ambientC(asked.At.HeatingAmbientC())
    , kilohertz(asked.Ripple.front().Kilohertz)
{
    for (const double volts : NodesOf(question.At.BiasVolts))
    {
        for (const double celsius : NodesOf(ambientC))
        {
            for (const double ofSine : NodesOf(kilohertz))
            {
                const Place place{volts, celsius, ofSine * HertzPerKilohertz()};
                nodes.push_back({place, BankWithoutWarmRise(QuestionAt(question, place))});
            }
        }
    }
}

bool BankRanges::IsCorner(const Place& place) const
{
    return IsEnd(place.BiasVolts, question.At.BiasVolts) && IsEnd(place.AmbientC, ambientC) &&
           (IsEnd(place.Hertz / HertzPerKilohertz(), kilohertz));
}

Extreme BankRanges::Least(const Told& told) const
{
    Extreme best{.Value = std::numeric_limits<double>::infinity(), .At = {}};
    for (const Node& node : nodes)
    {
        const Extreme tried{told(node.Bank), node.At};
        best = tried.IsBeyond(best, -1) ? tried : best;
    }
    if (IsCorner(best.At))
    {
        return best;
    }
    const auto placeOf = [](const std::array<double, 3>& at) {
        return Place{at[0], at[1], at[2] * HertzPerKilohertz()};
    };
    const auto found = RefinedIn<3>(
        [&](const auto& at) { return told(BankWithoutWarmRise(QuestionAt(question, placeOf(at)))); },
        {.At = {best.At.BiasVolts, best.At.AmbientC, best.At.Hertz / HertzPerKilohertz()},
         .Value = best.Value},
        {SideOf(question.At.BiasVolts), SideOf(ambientC), SideOf(kilohertz)});
    return {.Value = found.Value, .At = placeOf(found.At)};
}

Extreme BankRanges::Most(const Told& told) const
{
    const auto least = Least([&](const BankAnswer& bank) { return -told(bank); });
    return {.Value = -least.Value, .At = least.At};
}

Extreme BankRanges::LeastCapacitance() const
{
    constexpr double percent = 100;
    std::vector<WeighedPart> parts;
    for (const BankPiece& piece : question.Pieces)
    {
        parts.push_back({.Part = piece.Part, .Weight = piece.Count * (1 - piece.Tolerance.Down / percent)});
    }
    return LeastSumIn(parts, {.BiasVolts = question.At.BiasVolts, .AmbientC = question.At.AmbientC},
                      question.At.View);
}

namespace
{
/// The worst of all that is told of a bank in its ranges.
class WorstBank
{
public:
    explicit WorstBank(const BankQuestion& asked)
        : question(asked)
        , ranges(asked)
    {
    }

    BankAnswer Answer() const
    {
        BankAnswer answer;
        const auto least = ranges.LeastCapacitance();
        answer.LeastPicoFarads = least.Value;
        answer.LeastAt = least.At;
        answer.PicoFarads = ranges.Least([](const BankAnswer& bank) { return bank.PicoFarads; }).Value;
        answer.Vrms = ranges.Most([](const BankAnswer& bank) { return bank.Vrms; }).Value;
        for (std::size_t i = 0; i < question.Pieces.size(); ++i)
        {
            answer.Pieces.push_back(PieceAnswer(i));
        }
        for (std::size_t i = 0; i < question.Ripple.size(); ++i)
        {
            answer.Frequencies.push_back(AtFrequency(i));
        }
        return answer;
    }

private:
    using Wish = double PieceOfBank::*;

    Extreme Least(std::size_t piece, Wish wish) const
    {
        return ranges.Least([=](const BankAnswer& bank) { return bank.Pieces[piece].*wish; });
    }

    Extreme Most(std::size_t piece, Wish wish) const
    {
        return ranges.Most([=](const BankAnswer& bank) { return bank.Pieces[piece].*wish; });
    }

    void Take(PieceOfBank& answer, Wish wish, Place PieceOfBank::*place, const Extreme& extreme) const
    {
        answer.*wish = extreme.Value;
        answer.*place = extreme.At;
    }

    PieceOfBank PieceAnswer(std::size_t i) const
    {
        PieceOfBank answer;
        TakeCapacitance(answer, i);
        Take(answer, &PieceOfBank::Rise, &PieceOfBank::RiseAt, Most(i, &PieceOfBank::Rise));
        Take(answer, &PieceOfBank::Margin, &PieceOfBank::MarginAt, Least(i, &PieceOfBank::Margin));
        Take(answer, &PieceOfBank::WorstRise, &PieceOfBank::WorstRiseAt, Most(i, &PieceOfBank::WorstRise));
        Take(answer, &PieceOfBank::WorstMargin, &PieceOfBank::WorstMarginAt,
             Least(i, &PieceOfBank::WorstMargin));
        answer.Arms = Most(i, &PieceOfBank::Arms).Value;
        answer.WorstArms = Most(i, &PieceOfBank::WorstArms).Value;
        answer.PermittedRise = Least(i, &PieceOfBank::PermittedRise).Value;
        answer.VoltageBound = Least(i, &PieceOfBank::VoltageBound).Value;
        answer.BoundAt =
            ranges.Least([=](const BankAnswer& bank) { return bank.Pieces[i].VoltageBound - bank.Vrms; }).At;
        answer.WarmRise = BankAt(QuestionAt(question, answer.RiseAt)).Pieces[i].WarmRise;
        for (std::size_t sine = 0; sine < question.Ripple.size(); ++sine)
        {
            answer.Frequencies.push_back(AtFrequency(i, sine));
        }
        return answer;
    }

    ConditionBox Box(const ConditionRange& celsius) const
    {
        return {.BiasVolts = question.At.BiasVolts, .AmbientC = celsius};
    }

    /// Below the temperatures of the heating data a piece is taken for no warmer than what is around it.
    void TakeCapacitance(PieceOfBank& answer, std::size_t i) const
    {
        const PartRecord& part = *question.Pieces[i].Part;
        const auto& ambient = question.At.AmbientC;
        const auto least = CapacitanceExtremesIn(part, Box(ambient), question.At.View);
        Take(answer, &PieceOfBank::PicoFarads, &PieceOfBank::LeastAt,
             {.Value = least->Least.Point.PicoFarads, .At = least->Least.At});
        double warm =
            ranges.Least([=](const BankAnswer& bank) { return bank.Pieces[i].WarmPicoFarads.value_or(none); })
                .Value;
        if (const float heatingC = question.At.HeatingAmbientC().Low; heatingC > ambient.Low)
        {
            const auto cold = CapacitanceExtremesIn(part, Box({ambient.Low, heatingC}), question.At.View);
            warm = std::min(warm, cold->Least.Point.PicoFarads);
        }
        answer.WarmPicoFarads = warm > 0 ? std::optional(warm) : std::nullopt;
    }

    PieceAtFrequency AtFrequency(std::size_t piece, std::size_t sine) const
    {
        const auto most = [&](double PieceAtFrequency::*wish)
        {
            return ranges
                .Most([=](const BankAnswer& bank) { return bank.Pieces[piece].Frequencies[sine].*wish; })
                .Value;
        };
        return {.Kilohertz = question.Ripple[sine].Kilohertz,
                .LossResistance = most(&PieceAtFrequency::LossResistance),
                .Arms = most(&PieceAtFrequency::Arms)};
    }

    BankAtFrequency AtFrequency(std::size_t sine) const
    {
        const auto most = [&](double BankAtFrequency::*wish, int sign)
        {
            return sign *
                   ranges.Most([=](const BankAnswer& bank) { return sign * (bank.Frequencies[sine].*wish); })
                       .Value;
        };
        return {.Kilohertz = question.Ripple[sine].Kilohertz,
                .PicoFarads = most(&BankAtFrequency::PicoFarads, -1),
                .LossResistance = most(&BankAtFrequency::LossResistance, 1),
                .Vrms = most(&BankAtFrequency::Vrms, 1)};
    }

    const BankQuestion& question;
    BankRanges ranges;
};

/// With all values at the point itself.
BankAnswer AtItsPoint(BankAnswer answer, const BankQuestion& question)
{
    const Place point{.BiasVolts = question.At.BiasVolts.Low,
                      .AmbientC = question.At.AmbientC.Low,
                      .Hertz = question.Ripple.front().Kilohertz.Low * HertzPerKilohertz()};
    answer.LeastAt = point;
    for (PieceOfBank& piece : answer.Pieces)
    {
        for (Place PieceOfBank::*const place :
             {&PieceOfBank::LeastAt, &PieceOfBank::RiseAt, &PieceOfBank::MarginAt, &PieceOfBank::WorstRiseAt,
              &PieceOfBank::WorstMarginAt, &PieceOfBank::BoundAt})
        {
            piece.*place = point;
        }
    }
    return answer;
}
} // namespace

BankAnswer BankOf(const BankQuestion& question)
{
    return question.IsPoint() ? AtItsPoint(BankAt(question), question) : WorstBank(question).Answer();
}

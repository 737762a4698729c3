#include "board/PartVerdict.h"

#include "calc/Conditions.h"
#include "calc/CornerCapacitance.h"
#include "find/PartFinder.h"
#include "find/PointColumns.h"
#include "partdata/RunTimeError.h"
#include "requests/FourDigits.h"

#include <algorithm>
#include <limits>

namespace
{
constexpr double percent = 100;

std::string Digits(double value)
{
    return FourDigits(static_cast<float>(value));
}

std::string Farads(double picofarads)
{
    return CapacitanceInFourDigits(static_cast<float>(picofarads));
}

/// Why the search would leave the part out, were one of its wants this one.
std::optional<LeftOutReason> EmptinessOf(const PartRecord& part, const FindQuestion& question, Wants wanted)
{
    FindQuestion search{.At = question.At, .Wanted = wanted};
    search.At.Load.reset();
    const std::array candidates = {&part};
    return FindParts(candidates, search).LeftOut.First();
}

class PartJudge
{
public:
    PartJudge(const PartRecord& judged, const BomQuestion& asked, const NetShare* ofNet)
        : part(judged)
        , question(asked)
        , share(ofNet)
        , answer{.Figures = FoundPart(judged), .Limits = {}, .Unknown = {}, .Missed = {}}
    {
    }

    JudgedPart Judge()
    {
        if (!question.HasBias)
        {
            answer.Unknown.emplace_back("no bias is given");
            return answer;
        }
        JudgeBias();
        Fill();
        TakeShare();
        JudgeCapacitance();
        JudgeRise();
        JudgeLoss();
        return answer;
    }

private:
    void AddLimit(std::string_view name, double wanted, double found, double left, std::string text)
    {
        answer.Limits.push_back({name, wanted, found, left * percent, std::move(text)});
    }

    void JudgeBias()
    {
        const double rated = part.Data[Value::RatedVoltage];
        const double most = rated * question.MostBias / percent;
        const double high = question.Asked.At.BiasVolts.High;
        const bool isMissed = static_cast<float>(high) > static_cast<float>(most);
        const auto portion = question.MostBias < percent
                                 ? " (" + Digits(question.MostBias) + " % of " + Digits(rated) + " V)"
                                 : "";
        AddLimit("bias", most, high, 1 - high / most,
                 "bias " + Digits(high) + " V " + (isMissed ? "above " : "of ") + Digits(most) + " V" +
                     portion);
    }

    void Fill()
    {
        Wants loss;
        loss.MostLossResistance = std::numeric_limits<float>::max();
        Wants capacitance;
        capacitance.LeastCapacitance = 0;
        noCapacitance = EmptinessOf(part, question.Asked, capacitance);
        noHeating = question.Asked.At.Kilohertz ? EmptinessOf(part, question.Asked, loss)
                                                : std::optional(LeftOutReason::NoHeatingData);
        try
        {
            const bool isBelow = IsDCBiasBelowRated(question.Asked.At.BiasVolts.High, part);
            PointColumns(question.Asked)
                .Fill(answer.Figures,
                      {.Capacitance = !noCapacitance, .Heating = !noHeating, .Loads = !noHeating && isBelow});
        }
        catch (const RunTimeError&)
        {
            noCapacitance = noHeating = LeftOutReason::CannotBeCalculated;
        }
        // The sine that heats as another current does not make its voltage.
        if (question.Load)
        {
            answer.Figures.Clear(FoundColumn::Ripple);
        }
        if (noCapacitance == LeftOutReason::TemperatureOutOfRange)
        {
            answer.Missed.emplace_back("the ambient temperature is outside the range of the characteristic");
        }
    }

    /// What the part bears of a net's current, in the place of what a load of its own would do.
    void TakeShare()
    {
        if (share == nullptr)
        {
            return;
        }
        FoundPart& figures = answer.Figures;
        figures.Set(FoundColumn::Rise, share->Rise);
        figures.Set(FoundColumn::PermittedRise, share->PermittedRise);
        figures.Set(FoundColumn::Margin, share->Margin);
        figures.Set(FoundColumn::Body, share->Body);
        const auto& at = question.Asked.At;
        const auto body = static_cast<float>(share->Body);
        const auto warm =
            noCapacitance || !IsClassAmbientPermitted(body, part, at.View)
                ? std::nullopt
                : CapacitanceExtremesIn(
                      part, {.BiasVolts = at.BiasVolts, .AmbientC = {at.AmbientC.Low, body}}, at.View);
        if (warm)
        {
            figures.Set(FoundColumn::WarmCapacitance,
                        warm->Least.Point.PicoFarads * (1 - at.Tolerance.Down / percent));
        }
    }

    /// A limit that the value has to reach.
    void JudgeLeast(std::string_view name, std::optional<float> wanted, std::optional<double> found,
                    const std::string& where, std::string (*text)(double))
    {
        if (!wanted || noCapacitance == LeftOutReason::TemperatureOutOfRange ||
            noCapacitance == LeftOutReason::BiasTooHigh)
        {
            return;
        }
        if (!found)
        {
            answer.Unknown.push_back(
                std::string(name) + ": " +
                std::string(TextOf(noCapacitance.value_or(LeftOutReason::NoHeatingData))));
            return;
        }
        const bool isMissed = static_cast<float>(*found) < *wanted;
        const double reserve = *wanted > 0 ? *found / *wanted - 1 : std::numeric_limits<double>::infinity();
        AddLimit(name, *wanted, *found, reserve,
                 (name == "warm capacitance" ? "warm " : "") + text(*found) + where +
                     (isMissed ? " under " : " of ") + text(*wanted) + (isMissed ? "" : " wanted"));
    }

    void JudgeCapacitance()
    {
        const auto& wanted = question.Asked.Wanted;
        const auto& figures = answer.Figures;
        const auto at = figures.ConditionsAt(FoundPlace::Least);
        const auto where = at ? " at " + Digits((*at)[0]) + " V, " + Digits((*at)[1]) + " C" : std::string();
        const auto warm = figures.ValueOf(FoundColumn::WarmCapacitance);
        JudgeLeast("capacitance", wanted.LeastCapacitance, figures.ValueOf(FoundColumn::Total), where,
                   Farads);
        JudgeLeast("left", wanted.LeastLeft, figures.ValueOf(FoundColumn::Left), where,
                   [](double value) { return Digits(value) + " % left"; });
        JudgeLeast("warm capacitance", wanted.LeastWarmCapacitance,
                   warm ? std::optional(question.Parallel() * *warm) : std::nullopt, "", Farads);
    }

    void JudgeRise()
    {
        const bool isNet = !question.NetRipple.empty();
        if (question.IsLoadOutside)
        {
            answer.Unknown.emplace_back("the load lies outside 10 kHz to 1 MHz");
        }
        else if (isNet && share == nullptr)
        {
            answer.Unknown.emplace_back("the current of the net cannot be shared");
        }
        else if (isNet)
        {
            AddRise(share->PermittedRise, share->Rise, share->Reserve);
        }
        else if (question.Asked.At.Load)
        {
            JudgeOwnRise();
        }
    }

    void JudgeOwnRise()
    {
        const auto& figures = answer.Figures;
        const auto rise = figures.ValueOf(FoundColumn::Rise);
        const auto permitted = figures.ValueOf(FoundColumn::PermittedRise);
        const auto allowed = figures.ValueOf(FoundColumn::Current);
        if (!rise || !permitted)
        {
            answer.Unknown.push_back(
                "rise: " + std::string(TextOf(noHeating.value_or(LeftOutReason::CannotBeCalculated))));
            return;
        }
        const double each = double{question.Asked.At.Load->Value} / question.Parallel();
        const double used = allowed && *allowed > 0 ? each / *allowed : 0;
        const double byRise = *permitted > 0 ? 1 - *rise / *permitted : -1;
        // Where the permitted rise falls within the range, the largest rise need not meet the least of it.
        AddRise(*permitted, *rise, allowed ? 1 - used * used : byRise);
    }

    void AddRise(double permitted, double rise, double reserve)
    {
        const double rounded = reserve < 0 && reserve > -RoundingShare ? 0 : reserve;
        AddLimit("rise", permitted, rise, rounded,
                 permitted > 0 ? "rise " + Digits(rise) + (rounded < 0 ? " C above " : " C of ") +
                                     Digits(permitted) + " C"
                               : "no permitted rise");
    }

    void JudgeLoss()
    {
        const auto& wanted = question.Asked.Wanted.MostLossResistance;
        const auto found = answer.Figures.ValueOf(FoundColumn::LossResistance);
        if (wanted && !found)
        {
            answer.Unknown.push_back("loss resistance: " + std::string(TextOf(noHeating.value_or(
                                                               LeftOutReason::CannotBeCalculated))));
        }
        else if (wanted)
        {
            const bool isMissed = static_cast<float>(*found) > *wanted;
            AddLimit("loss resistance", *wanted, *found, *wanted > 0 ? 1 - *found / *wanted : -1,
                     "loss resistance " + Digits(*found) + (isMissed ? " mOhm above " : " mOhm of ") +
                         Digits(*wanted) + " mOhm");
        }
    }

    const PartRecord& part;
    const BomQuestion& question;
    const NetShare* share;
    JudgedPart answer;
    std::optional<LeftOutReason> noCapacitance;
    std::optional<LeftOutReason> noHeating;
};
} // namespace

const BomLimit* JudgedPart::Deciding() const
{
    const auto found = std::ranges::min_element(Limits, {}, &BomLimit::Reserve);
    return found == Limits.end() ? nullptr : &*found;
}

bool JudgedPart::IsFailing() const
{
    return !Missed.empty() || (Deciding() != nullptr && Deciding()->Reserve < 0);
}

JudgedPart JudgePart(const PartRecord& part, const BomQuestion& question, const NetShare* share)
{
    return PartJudge(part, question, share).Judge();
}

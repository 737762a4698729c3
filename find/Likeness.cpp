#include "find/Likeness.h"

#include "calc/Bounds.h"
#include "calc/Conditions.h"
#include "find/CapacitanceRatio.h"
#include "find/KindsOfData.h"
#include "find/LeftOut.h"
#include "find/LossRatio.h"
#include "partdata/RunTimeError.h"

#include <algorithm>
#include <cmath>
#include <utility>

ConditionBox LikeQuestion::Box() const
{
    const auto* const characteristic = FindCharacteristic(Original->Tcc[0]);
    const auto own = characteristic != nullptr ? characteristic->RangeIn(View) : TemperatureRange{};
    return {.BiasVolts = BiasVolts.value_or(ConditionRange(0, Original->Data[Value::RatedVoltage])),
            .AmbientC = AmbientC.value_or(ConditionRange(own.MinC, own.MaxC))};
}

std::optional<ConditionRange> LikeQuestion::HeatingAmbientC() const
{
    const float highest = std::min(Box().AmbientC.High, Original->Data[Value::UpperTemperature]);
    const bool isJudged = HasHeatingData(*Original) && highest >= LowestHeatingAmbientC;
    return isJudged ? std::optional(ConditionRange(LowestHeatingAmbientC, highest)) : std::nullopt;
}

namespace
{
constexpr std::size_t mostNearest = 3;

/// What rounding may take a ratio beyond the one that is meant.
constexpr double ratioRounding = 1e-9;

/// In percent against the part that is compared with.
Extreme InPercent(const Extreme& ratio)
{
    return {(ratio.Value - 1) * 100, ratio.At};
}

/// Judges candidates for one part.
class Judge
{
public:
    explicit Judge(const LikeQuestion& asked)
        : question(asked)
        , original(*asked.Original)
        , box(asked.Box())
        , heatingC(asked.HeatingAmbientC())
        , largest(asked.LargestSize ? asked.LargestSize : SizeOf(original))
    {
    }

    void Take(const PartRecord& part, LikeParts& found)
    {
        LikePart like{.Part = &part};
        const auto reason = ReasonAgainst(part, like);
        if (!reason)
        {
            found.Parts.push_back(like);
            return;
        }
        ++found.LeftOut[static_cast<std::size_t>(*reason)];
        const bool isNear = *reason == UnlikeReason::LessCapacitance ||
                            *reason == UnlikeReason::MoreCapacitance || *reason == UnlikeReason::MoreLoss;
        if (isNear && (HasHeatingData(part) || !HasHeatingData(original)))
        {
            near.push_back(&part);
        }
    }

    /// The fullest of those that fit but for their capacitance or loss.
    std::vector<LikePart> Nearest() const
    {
        // What is tried first is no less than the least: once it is below the third, so is every part behind.
        std::vector<std::pair<double, const PartRecord*>> byFirst;
        for (const PartRecord* part : near)
        {
            byFirst.emplace_back(-CapacitanceRatio(*part, original, box).LeastAtFirst(), part);
        }
        std::ranges::stable_sort(byFirst, {}, &std::pair<double, const PartRecord*>::first);
        std::vector<LikePart> nearest;
        for (const auto& [negated, part] : byFirst)
        {
            if (nearest.size() == mostNearest && (-negated - 1) * 100 <= nearest.back().Least.Value)
            {
                break;
            }
            AddNearest(nearest, *part);
        }
        return nearest;
    }

private:
    std::optional<UnlikeReason> ReasonAgainst(const PartRecord& part, LikePart& like) const
    {
        if (const auto size = SizeOf(part); largest && (!size || !size->IsWithin(*largest)))
        {
            return UnlikeReason::TooLarge;
        }
        if (!(part.Data[Value::RatedVoltage] >= original.Data[Value::RatedVoltage]))
        {
            return UnlikeReason::RatedVoltageTooLow;
        }
        if (!HasCapacitanceData(part))
        {
            return UnlikeReason::NoCapacitanceData;
        }
        if (!IsPermitted(part))
        {
            return UnlikeReason::TemperatureOutOfRange;
        }
        try
        {
            const auto reason = ReasonByCapacitance(part, like);
            return reason ? reason : ReasonByLoss(part, like);
        }
        catch (const RunTimeError&)
        {
            return UnlikeReason::CannotBeCalculated;
        }
    }

    /// The temperatures of its characteristic, and no smaller rise than the original is permitted.
    bool IsPermitted(const PartRecord& part) const
    {
        const auto upper = Value::UpperTemperature;
        const float needed = std::min(original.Data[upper], box.AmbientC.High + RecommendedRise);
        return IsClassAmbientPermitted(box.AmbientC.Low, part, question.View) &&
               IsClassAmbientPermitted(box.AmbientC.High, part, question.View) &&
               (!HasHeatingData(original) || !HasHeatingData(part) || part.Data[upper] >= needed);
    }

    std::optional<UnlikeReason> ReasonByCapacitance(const PartRecord& part, LikePart& like) const
    {
        const double least = 1 - question.Worse / 100.0 - ratioRounding;
        const CapacitanceRatio ratio(part, original, box);
        // A few places tell most of those that have less.
        if (ratio.LeastAtFirst() < least)
        {
            return UnlikeReason::LessCapacitance;
        }
        const auto extremes = ratio.Extremes();
        if (extremes.Least.Value < least)
        {
            return UnlikeReason::LessCapacitance;
        }
        like.Least = InPercent(extremes.Least);
        like.Most = InPercent(extremes.Most);
        const bool isMore = question.Most && like.Most.Value > *question.Most + ratioRounding;
        return isMore ? std::optional(UnlikeReason::MoreCapacitance) : std::nullopt;
    }

    std::optional<UnlikeReason> ReasonByLoss(const PartRecord& part, LikePart& like) const
    {
        if (HasHeatingData(original) && !HasHeatingData(part))
        {
            return UnlikeReason::NoHeatingData;
        }
        like.Loss = LossOf(part);
        const bool isMore = like.Loss && like.Loss->Value > question.Worse + ratioRounding;
        return isMore ? std::optional(UnlikeReason::MoreLoss) : std::nullopt;
    }

    std::optional<Extreme> LossOf(const PartRecord& part) const
    {
        return heatingC && HasHeatingData(part)
                   ? std::optional(
                         InPercent(MostLossRatio({part, original, question.HeatResistance}, *heatingC)))
                   : std::nullopt;
    }

    void AddNearest(std::vector<LikePart>& nearest, const PartRecord& part) const
    {
        const auto extremes = CapacitanceRatio(part, original, box).Extremes();
        const LikePart like{.Part = &part,
                            .Least = InPercent(extremes.Least),
                            .Most = InPercent(extremes.Most),
                            .Loss = LossOf(part)};
        const auto behind = std::ranges::find_if(nearest, [&](const LikePart& other)
                                                 { return like.Least.Value > other.Least.Value; });
        nearest.insert(behind, like);
        nearest.resize(std::min(nearest.size(), mostNearest));
    }

    const LikeQuestion& question;
    const PartRecord& original;
    ConditionBox box;
    std::optional<ConditionRange> heatingC;
    std::optional<PartSize> largest;
    std::vector<const PartRecord*> near;
};

double AreaOf(const LikePart& like)
{
    const auto size = SizeOf(*like.Part);
    return size ? size->Area() : std::numeric_limits<double>::infinity();
}
} // namespace

LikeParts FindLike(std::span<const PartRecord* const> candidates, const LikeQuestion& question)
{
    LikeParts found;
    Judge judge(question);
    for (const PartRecord* part : candidates)
    {
        if (part != question.Original)
        {
            judge.Take(*part, found);
        }
    }
    std::ranges::stable_sort(found.Parts, {},
                             [](const LikePart& like)
                             { return std::pair(std::abs(like.Most.Value), AreaOf(like)); });
    if (found.Parts.empty())
    {
        found.Nearest = judge.Nearest();
    }
    return found;
}

static std::string_view TextOf(UnlikeReason reason)
{
    static constexpr std::array<std::string_view, UnlikeReasons> texts = {
        "too large",
        "rated voltage too low",
        "no capacitance data",
        "temperature out of range",
        "less capacitance",
        "more capacitance",
        "no heating data",
        "more loss",
        "cannot be calculated",
    };
    return texts.at(static_cast<std::size_t>(reason));
}

std::string LikeText(const LikeParts& found, const LikeQuestion& question)
{
    std::string text = FittingText(found.Parts.size());
    std::string separator = "; left out: ";
    for (std::size_t i = 0; i < UnlikeReasons; ++i)
    {
        if (found.LeftOut[i] > 0)
        {
            text.append(separator)
                .append(std::to_string(found.LeftOut[i]))
                .append(" ")
                .append(TextOf(static_cast<UnlikeReason>(i)));
            separator = ", ";
        }
    }
    if (!question.HeatingAmbientC())
    {
        text += HasHeatingData(*question.Original)
                    ? "; loss not judged: below 20 C, where the heating data begins"
                    : "; loss not judged: the part has no heating data";
    }
    return text;
}

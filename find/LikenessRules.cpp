#include "find/LikenessRules.h"

#include "calc/Conditions.h"
#include "calc/CornerCapacitance.h"
#include "calc/NumberText.h"
#include "find/KindsOfData.h"
#include "partdata/RunTimeError.h"

namespace
{
using Result = std::optional<QuestionRefusal>;

Result RefuseOriginal(const LikeQuestion& question)
{
    const bool isKnown = HasCapacitanceData(*question.Original);
    return isKnown ? std::nullopt
                   : Result(QuestionRefusal{.Key = "part", .Message = "has no capacitance data"});
}

/// Either end in the words of the form.
Result RefuseEnds(const std::optional<ConditionRange>& range, Condition condition, ConditionRule rule,
                  const LikeQuestion& question)
{
    for (const float end : {range ? range->Low : 0, range ? range->High : 0})
    {
        auto message = range ? rule(NumberText(end), *question.Original, question.View, {}) : Refusal();
        if (message)
        {
            return QuestionRefusal{.Key = KindOf(condition).Key, .Message = std::move(*message)};
        }
    }
    return std::nullopt;
}

Result RefuseResistance(const LikeQuestion& question)
{
    if (!question.HeatResistance || IsHeatResistancePermitted(*question.HeatResistance))
    {
        return std::nullopt;
    }
    return QuestionRefusal{.Key = KindOf(Condition::HeatResistance).Key,
                           .Message = RefuseHeatResistance("", {}, CodeView::Eia, {}).value_or("")};
}

Result RefusePercent(float value, float largest, std::string_view key, std::string_view name)
{
    if (value >= 0 && value <= largest)
    {
        return std::nullopt;
    }
    return QuestionRefusal{.Key = key,
                           .Message = std::string(name) + " is invalid!\r\nPlease enter a Number from 0 to " +
                                      NumberText(largest) + " [%]"};
}

/// What nothing can be compared with.
Result RefuseNothingLeft(const LikeQuestion& question)
{
    try
    {
        const auto extremes = CapacitanceExtremesIn(*question.Original, question.Box(), question.View);
        if (extremes && extremes->Least.Point.PicoFarads > 0)
        {
            return std::nullopt;
        }
    }
    catch (const RunTimeError&)
    {
        // Told as the capacitance that it is not.
    }
    return QuestionRefusal{.Key = "part", .Message = "has no capacitance left somewhere in the ranges"};
}
} // namespace

std::optional<QuestionRefusal> RefuseLikeQuestion(const LikeQuestion& question)
{
    constexpr float mostWorse = 99;
    constexpr float mostMore = 999;
    for (const auto& refused :
         {RefuseOriginal(question), RefuseEnds(question.BiasVolts, Condition::DCBias, RefuseDCBias, question),
          RefuseEnds(question.AmbientC, Condition::AmbientTemperature, RefuseClassAmbient, question),
          RefuseResistance(question), RefusePercent(question.Worse, mostWorse, "worse", "Worse"),
          RefusePercent(question.Most.value_or(0), mostMore, "most", "Most")})
    {
        if (refused)
        {
            return refused;
        }
    }
    return RefuseNothingLeft(question);
}

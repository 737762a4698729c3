#include "find/QuestionRules.h"

#include "calc/Conditions.h"
#include "calc/TemperatureRise.h"

#include <array>
#include <cmath>

namespace
{
using Result = std::optional<QuestionRefusal>;

/// The form's words, which a text that is no number always brings.
std::string WordsOf(ConditionRule rule, const PartRecord& part = {})
{
    return rule("", part, CodeView::Eia, {}).value_or("");
}

/// In the manner of the form's words.
std::string InvalidWords(std::string_view name, std::string_view permitted)
{
    return std::string(name) + " is invalid!\r\nPlease enter a Number " + std::string(permitted);
}

Result Refused(Condition condition, std::string message)
{
    return QuestionRefusal{.Key = KindOf(condition).Key, .Message = std::move(message)};
}

/// Above every rating a bias is the parts' affair, each of which is left out.
Result RefuseBias(const OperatingPoint& at, float largestRating)
{
    if (at.BiasVolts.Low >= 0)
    {
        return std::nullopt;
    }
    PartRecord largest;
    largest.Data[Value::RatedVoltage] = largestRating;
    return Refused(Condition::DCBias, WordsOf(RefuseDCBias, largest));
}

Result RefuseResistance(const OperatingPoint& at)
{
    const bool isPermitted = !at.HeatResistance || IsHeatResistancePermitted(*at.HeatResistance);
    return isPermitted ? std::nullopt : Refused(Condition::HeatResistance, WordsOf(RefuseHeatResistance));
}

Result RefuseHertz(const FindQuestion& question)
{
    const auto& kilohertz = question.At.Kilohertz;
    const bool isNeeded = question.At.Load || question.Wanted.MostLossResistance;
    const bool isPermitted =
        kilohertz && IsFrequencyPermitted(kilohertz->Low) && IsFrequencyPermitted(kilohertz->High);
    if (isPermitted || (!kilohertz && !isNeeded))
    {
        return std::nullopt;
    }
    auto refused = Refused(Condition::Frequency, WordsOf(RefuseFrequency));
    if (refused)
    {
        refused->IsMissing = !kilohertz;
    }
    return refused;
}

bool IsFromZero(float value)
{
    return value >= 0 && std::isfinite(value);
}

/// Without a load no part is warmer than what is around it.
Result RefuseNoLoad(const FindQuestion& question)
{
    if (!question.Wanted.LeastWarmCapacitance || question.At.Load)
    {
        return std::nullopt;
    }
    auto refused = Refused(Condition::Parameter, InvalidWords(KindOf(Condition::Parameter).Name,
                                                              "from 0 " + UnitOf(Quantity::Current)));
    refused->IsMissing = true;
    return refused;
}

Result RefuseLoad(const OperatingPoint& at)
{
    if (!at.Load || IsFromZero(at.Load->Value))
    {
        return std::nullopt;
    }
    return Refused(Condition::Parameter,
                   InvalidWords(KindOf(Condition::Parameter).Name, "from 0 " + UnitOf(at.Load->Kind)));
}

Result RefuseTolerance(const CapacitanceTolerance& tolerance)
{
    if (IsPermitted(tolerance))
    {
        return std::nullopt;
    }
    return QuestionRefusal{.Key = "tolerance",
                           .Message =
                               InvalidWords("Tolerance", "from 0 to 99 [%] down and from 0 to 999 [%] up")};
}

Result RefuseRise(const Wants& wanted)
{
    const auto& rise = wanted.MostRise;
    if (!rise || (*rise > 0 && *rise <= RiseCeiling))
    {
        return std::nullopt;
    }
    return QuestionRefusal{.Key = "maxRise",
                           .Message =
                               InvalidWords(NameOf(Quantity::TemperatureRise), "above 0, up to 80 [C]")};
}

/// A wanted limit that may be any number from 0 on.
struct Limit
{
    std::string_view Key;
    std::optional<float> Wants::*Value;
    std::string_view Name;
    std::string_view Unit;
};

constexpr std::array<Limit, 4> limits = {{
    {"minCapacitance", &Wants::LeastCapacitance, "Capacitance", "[pF]"},
    {"minWarmCapacitance", &Wants::LeastWarmCapacitance, "Warm capacitance", "[pF]"},
    {"minLeft", &Wants::LeastLeft, "Capacitance left", "[%]"},
    {"maxLossResistance", &Wants::MostLossResistance, "Loss Resistance", "[mOhm]"},
}};

Result RefuseLimits(const Wants& wanted)
{
    for (const Limit& limit : limits)
    {
        const auto& value = wanted.*limit.Value;
        if (value && !IsFromZero(*value))
        {
            return QuestionRefusal{.Key = limit.Key,
                                   .Message = InvalidWords(limit.Name, "from 0 " + std::string(limit.Unit))};
        }
    }
    return std::nullopt;
}
} // namespace

std::optional<QuestionRefusal> RefuseQuestion(const FindQuestion& question, float largestRating)
{
    for (const Result& refused :
         {RefuseBias(question.At, largestRating), RefuseResistance(question.At), RefuseHertz(question),
          RefuseLoad(question.At), RefuseNoLoad(question), RefuseTolerance(question.At.Tolerance),
          RefuseLimits(question.Wanted), RefuseRise(question.Wanted)})
    {
        if (refused)
        {
            return refused;
        }
    }
    return std::nullopt;
}

#include "requests/StressReport.h"

#include "calc/Bounds.h"
#include "calc/Conditions.h"
#include "calc/NumberText.h"
#include "partdata/Availability.h"
#include "partdata/RunTimeError.h"
#include "requests/RequestError.h"
#include "requests/UnitEntry.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace
{
/// A condition with the rule that judges it, in the order of the form.
struct JudgedCondition
{
    Condition Id;
    ConditionRule Refuse;
};

constexpr std::array<JudgedCondition, 3> judged = {{
    {Condition::DCBias, RefuseDCBias},
    {Condition::HeatResistance, RefuseHeatResistance},
    {Condition::AmbientTemperature, RefuseHeatingAmbient},
}};

std::string OnOneLine(std::string words)
{
    std::erase(words, '\r');
    std::ranges::replace(words, '\n', ' ');
    return words;
}

std::string EntryOf(const StressRequest& request, const ConditionKind& kind, const PartRecord& part)
{
    const auto& typed = request.Conditions[kind.Id];
    if (typed)
    {
        ValueInUnit(*typed, *kind.Measures, kind.Key);
        return EntryInUnit(*typed, *kind.Measures, kind.Key);
    }
    return kind.Id == Condition::DCBias ? "0" : FirstEntry(kind.Id, part, request.Code);
}

float JudgedValue(const StressRequest& request, const JudgedCondition& condition, const PartRecord& part)
{
    const ConditionKind& kind = KindOf(condition.Id);
    const auto entry = EntryOf(request, kind, part);
    if (const auto refusal = condition.Refuse(entry, part, request.Code, {.CommaIsDecimal = false}))
    {
        if (condition.Id == Condition::DCBias && !request.BiasColumn.empty())
        {
            throw RequestError(RequestErrorKind::Condition, "voltage", OnOneLine(*refusal))
                .Of(request.BiasColumn + ", whose mean is " + entry + " V");
        }
        throw RequestError(RequestErrorKind::Condition, std::string(kind.Key), OnOneLine(*refusal))
            .Of(request.Conditions[kind.Id].value_or(entry));
    }
    return ReadEntry(entry).value_or(0);
}

StressConditions ConditionsOf(const StressRequest& request, const PartRecord& part)
{
    std::array<float, judged.size()> values{};
    std::ranges::transform(judged, values.begin(),
                           [&](const JudgedCondition& condition)
                           { return JudgedValue(request, condition, part); });
    return {.BiasVolts = values[0],
            .AmbientC = values[2],
            .HeatResistance = values[1],
            .MostRise = request.MostRise,
            .View = request.Code,
            .Parallel = request.Parallel};
}

StressedPart StressedPartOf(const std::string& name, const StressRequest& request, const CurrentLoad& load,
                            const PartTable& parts, const CurveSettings& settings)
{
    const auto form = static_cast<std::size_t>(request.Code) + settings.NumberingOffset;
    const auto& part = parts.PartData[FindPart(parts, name, form)];
    if (!CanBeListed(part) || !HasData(part, Values::OfPower))
    {
        throw RequestError(RequestErrorKind::NoData, "part", "has no heating data");
    }
    return {.Part = &part, .Stress = StressOf(part, load, ConditionsOf(request, part), request.MostLines)};
}

} // namespace

std::string StressReport::Title() const
{
    return Source ? std::string(KindOf(Source->Data.Kind).Name) + ' ' +
                        std::string(ConverterSideNames.at(static_cast<std::size_t>(Source->Side)))
                  : Name;
}

std::optional<double> StressReport::StepError() const
{
    if (!Load.Record)
    {
        return std::nullopt;
    }
    std::optional<double> most;
    for (const StressedPart& part : Parts)
    {
        most = part.Stress.StepError ? std::max(most.value_or(0), *part.Stress.StepError) : most;
    }
    return most ? most : Load.Record->StepErrorOf(Load.Lines.Moments.Total());
}

std::vector<StressedPart> StressedPartsOf(const StressRequest& request, const CurrentLoad& load,
                                          const PartTable& parts, const CurveSettings& settings)
{
    std::vector<StressedPart> stressed;
    for (const std::string& name : request.Parts)
    {
        try
        {
            stressed.push_back(StressedPartOf(name, request, load, parts, settings));
        }
        catch (const RequestError& error)
        {
            throw error.OfPart(name);
        }
        catch (const RunTimeError& error)
        {
            throw error.At(name);
        }
    }
    return stressed;
}

static std::string SixDigits(double value)
{
    std::array<char, 32> text{};
    constexpr int digits = 6;
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, digits).ptr;
    return {text.data(), end};
}

std::string BankCurrentOf(const CurrentLoad& load)
{
    constexpr double leastShare = 1e-6;
    constexpr double hertzPerKilohertz = 1e3;
    const double least = leastShare * load.Lines.Moments.Total().Square;
    std::string text;
    for (const SpectralLine& line : load.Lines.Lines)
    {
        if (IsInside(line.Hertz) && line.Square > least)
        {
            const double hertz = std::clamp(line.Hertz, LowestFrequencyHz, HighestFrequencyHz);
            text += (text.empty() ? "" : " ") + SixDigits(hertz / hertzPerKilohertz) +
                    "kHz=" + SixDigits(std::sqrt(line.Square));
        }
    }
    return text;
}

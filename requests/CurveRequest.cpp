#include "requests/CurveRequest.h"

#include "calc/Calculate.h"
#include "calc/ChartKinds.h"
#include "calc/NumberText.h"
#include "partdata/RunTimeError.h"
#include "partdata/Windows1252.h"
#include "requests/Names.h"
#include "requests/RangeEntry.h"
#include "requests/RequestError.h"
#include "requests/UnitEntry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <span>

namespace
{
/// Entries never depend on the user's locale: a script means the same everywhere.
constexpr EntryLocale pointOnly{.CommaIsDecimal = false};

/// The conditions as they would stand in the boxes of the form.
using Entries = std::array<std::string, ConditionCount>;
} // namespace

ConditionTexts::ConditionTexts(std::initializer_list<std::pair<Condition, std::string>> typed)
{
    for (const auto& [condition, text] : typed)
    {
        (*this)[condition] = text;
    }
}

/// All part numbers in UTF-8.
static std::vector<std::string> PartNumsOf(const PartTable& parts)
{
    std::vector<std::string> numbers;
    for (const PartRecord& part : parts.PartData)
    {
        std::ranges::transform(part.PartNum, std::back_inserter(numbers), Utf8FromWindows1252);
    }
    return numbers;
}

std::size_t FindPart(const PartTable& parts, std::string_view partNum, std::size_t shownForm)
{
    const auto key = Windows1252FromUtf8(partNum);
    for (const bool sameCase : {true, false})
    {
        for (std::size_t i = 0; i < PartNumForms; ++i)
        {
            // The form on display first, then the others in their order.
            const std::size_t form = i == 0 ? shownForm : (i <= shownForm ? i - 1 : i);
            const auto* found = parts.PartIndex[form].Find(key);
            const auto index = found != nullptr ? static_cast<std::size_t>(*found) : 0;
            if (found != nullptr && (!sameCase || parts.PartData[index].PartNum[form] == key))
            {
                return index;
            }
        }
    }
    throw RequestError(RequestErrorKind::UnknownPart, "part",
                       "there is no part \"" + std::string(partNum) + "\"")
        .Meaning(NameMeantBy(partNum, PartNumsOf(parts)));
}

std::string ShownPartNum(const PartRecord& part, CodeView code, const CurveSettings& settings)
{
    return Utf8FromWindows1252(part.PartNum[static_cast<std::size_t>(code) + settings.NumberingOffset]);
}

std::vector<std::string> ChartRequestNames()
{
    std::vector<std::string> names;
    for (const ChartKind& kind : ChartKinds())
    {
        names.emplace_back(kind.CommandName);
    }
    return names;
}

std::int16_t ChartTypeOf(std::string_view commandName)
{
    std::vector<std::string_view> names;
    std::ranges::transform(ChartKinds(), std::back_inserter(names), &ChartKind::CommandName);
    return NumberOf(ChartKinds()[IndexOfName(commandName, names, "chart", "chart")]);
}

std::vector<std::string> ParameterRequestNames()
{
    std::vector<std::string> names;
    std::ranges::transform(Parameters, std::back_inserter(names), RequestNameOf, NameOf);
    return names;
}

CodeView CodeViewOf(std::string_view name)
{
    static constexpr std::array<std::string_view, 2> codes = {"eia", "jis"};
    return static_cast<CodeView>(IndexOfName(name, codes, "code", "code"));
}

std::size_t NumberingOffsetOf(std::string_view name)
{
    static constexpr std::array<std::string_view, 2> numberings = {"global", "previous"};
    return 2 * IndexOfName(name, numberings, "numbering", "numbering");
}

/// What was typed as the form would hold it. Throws RequestError for what is no number.
static std::string NumberInUnit(const std::string& typed, Quantity quantity, std::string_view key)
{
    ValueInUnit(typed, quantity, key);
    return EntryInUnit(typed, quantity, key);
}

static Entries EntriesOf(const CurveRequest& request, const PartRecord& part, Quantity parameter)
{
    Entries entries;
    for (const ConditionKind& kind : ConditionKinds())
    {
        const auto& typed = request.Conditions[kind.Id];
        entries[static_cast<std::size_t>(kind.Id)] =
            typed ? NumberInUnit(*typed, kind.Measures.value_or(parameter), kind.Key)
                  : FirstEntry(kind.Id, part, request.Code);
    }
    return entries;
}

/// The words of a rule, which the form shows on two lines.
static std::string OnOneLine(std::string words)
{
    std::erase(words, '\r');
    std::ranges::replace(words, '\n', ' ');
    return words;
}

/// A number that no rule has judged.
static float PlainValue(const std::string& entry, const ConditionKind& kind)
{
    const auto value = ReadEntry(entry.empty() ? "0" : entry);
    if (!value)
    {
        throw RequestError(RequestErrorKind::Condition, std::string(kind.Key), "is not a number").Of(entry);
    }
    return *value;
}

/// What is told of a condition that is refused: the text as it was typed.
static std::string Echo(const CurveRequest& request, Condition condition, const Entries& entries)
{
    return request.Conditions[condition].value_or(entries[static_cast<std::size_t>(condition)]);
}

/// Conditions as the form's checks and disabled boxes leave them: those that the sweep does not use are 0.
static void JudgeConditions(ChartRecord& line, const Entries& entries, const PartRecord& part,
                            const CurveRequest& request)
{
    const ChartKind& chart = ChartKindOf(line.ChartType);
    const ChartSweep& sweep = SweepOf(line.ChartType, line.XAxisName);
    for (const Condition condition : JudgingOrder)
    {
        if (!sweep.Uses(condition))
        {
            continue;
        }
        const ConditionKind& kind = KindOf(condition);
        const auto& entry = entries[static_cast<std::size_t>(condition)];
        if (const auto refusal = RuleOf(chart, condition)(entry, part, request.Code, pointOnly))
        {
            throw RequestError(RequestErrorKind::Condition, std::string(kind.Key), OnOneLine(*refusal))
                .Of(Echo(request, condition, entries));
        }
        line.*kind.Value = PlainValue(entry, kind);
    }
}

static void TakeConditions(ChartRecord& line, const Entries& entries)
{
    for (const ConditionKind& kind : ConditionKinds())
    {
        line.*kind.Value = PlainValue(entries[static_cast<std::size_t>(kind.Id)], kind);
    }
}

/// Throws RequestError: the part cannot be drawn on the chart.
[[noreturn]] static void FailWithoutData(const ChartRecord& line)
{
    throw RequestError(RequestErrorKind::NoData, "chart",
                       "has no data for chart " + std::string(ChartKindOf(line.ChartType).CommandName));
}

static void CalculateOrRefuse(const PartRecord& part, ChartRecord& line, const CurveRequest& request,
                              const Entries& entries)
{
    if (const auto refusal = Calculate(part, line, request.Code))
    {
        const ConditionKind& parameter = KindOf(Condition::Parameter);
        throw RequestError(RequestErrorKind::Condition, std::string(parameter.Key),
                           OnOneLine(refusal->Message))
            .Of(Echo(request, parameter.Id, entries))
            .Within(refusal->Limit);
    }
    if (std::ranges::all_of(line.YData, [](float y) { return std::isnan(y); }))
    {
        FailWithoutData(line);
    }
}

/// The quantity of a list that is named, or the first where none is.
static Quantity Meant(const std::optional<std::string>& name, std::span<const Quantity> quantities,
                      std::string_view what, std::string_view key)
{
    if (!name)
    {
        return quantities.front();
    }
    std::vector<std::string_view> names;
    std::ranges::transform(quantities, std::back_inserter(names), NameOf);
    return quantities[IndexOfName(*name, names, what, key)];
}

/// Keys of conditions that are typed and that the sweep does not use.
static std::vector<std::string> UnusedKeys(const CurveRequest& request, const ChartSweep& sweep)
{
    std::vector<std::string> keys;
    for (const ConditionKind& kind : ConditionKinds())
    {
        if (sweep.Uses(kind.Id))
        {
            continue;
        }
        if (!kind.Measures && request.Parameter)
        {
            keys.emplace_back("parameter");
        }
        if (request.Conditions[kind.Id])
        {
            keys.emplace_back(kind.Key);
        }
    }
    return keys;
}

/// As `CurveOf`, but that errors do not tell the part.
static RequestedCurve CurveOfPart(const CurveRequest& request, const PartTable& parts,
                                  const CurveSettings& settings)
{
    RequestedCurve curve{.Part = nullptr, .Code = request.Code, .Line = {}};
    ChartRecord& line = curve.Line;
    const ChartKind& chart = ChartKindOf(ChartTypeOf(request.Chart));
    const auto parameter = Meant(request.Parameter, Parameters, "parameter", "parameter");
    line.ChartType = NumberOf(chart);
    line.XAxisName = NameOf(Meant(request.X, XAxesOf(chart), "X axis", "x"));
    line.YAxisName = NameOf(Meant(request.Y, chart.YAxes, "Y axis", "y"));
    line.ParameterName = NameOf(parameter);

    const auto shownForm = static_cast<std::size_t>(request.Code) + settings.NumberingOffset;
    const auto index = FindPart(parts, request.Part, shownForm);
    line.PartDataIndex = static_cast<std::int32_t>(index);
    curve.Part = &parts.PartData[index];

    const auto entries = EntriesOf(request, *curve.Part, parameter);
    if (settings.Unchecked)
    {
        TakeConditions(line, entries);
    }
    else if (!IsAvailable(*curve.Part, line.ChartType))
    {
        FailWithoutData(line);
    }
    else
    {
        JudgeConditions(line, entries, *curve.Part, request);
    }
    CalculateOrRefuse(*curve.Part, line, request, entries);
    curve.Unused = UnusedKeys(request, SweepOf(line.ChartType, line.XAxisName));
    if (request.At)
    {
        curve.Points = PointsOf(*curve.Part, line, request.Code, *request.At);
    }
    if (request.Where)
    {
        curve.Levels = LevelsOf(*curve.Part, line, request.Code, *request.Where);
    }
    return curve;
}

/// The conditions that may be ranges.
static bool TakesRange(Condition condition)
{
    return condition == Condition::DCBias || condition == Condition::Frequency ||
           condition == Condition::AmbientTemperature;
}

/// The request with one end of each condition that is a range, and without points.
static CurveRequest EndOf(const CurveRequest& request, bool isHigh)
{
    CurveRequest end = request;
    end.At.reset();
    for (const ConditionKind& kind : ConditionKinds())
    {
        const auto& typed = request.Conditions[kind.Id];
        const auto ends =
            typed && TakesRange(kind.Id) ? RangeTypedAs(*typed, *kind.Measures, kind.Key) : std::nullopt;
        if (ends)
        {
            // Tells a first end above the second.
            ConditionRangeOf(*typed, *kind.Measures, kind.Key);
            end.Conditions[kind.Id] = isHigh ? ends->High : ends->Low;
        }
    }
    return end;
}

/// Throws RequestError for ranges without single points: no curve can be drawn of them.
static void RefuseRangesWithoutPoints(const CurveRequest& request)
{
    for (const ConditionKind& kind : ConditionKinds())
    {
        const auto& typed = request.Conditions[kind.Id];
        const bool isRange = typed && TakesRange(kind.Id) && IsTypedAsRange(*typed);
        if (isRange && (!request.At || request.Where))
        {
            throw RequestError(RequestErrorKind::NotANumber, std::string(kind.Key),
                               '"' + *typed + "\" is a range, over which only values at single X are told");
        }
    }
}

static bool HasRanges(const CurveRequest& request)
{
    const auto isRange = [](const std::string& typed) { return IsTypedAsRange(typed); };
    return std::ranges::any_of(ConditionKinds(),
                               [&](const ConditionKind& kind)
                               {
                                   const auto& typed = request.Conditions[kind.Id];
                                   return TakesRange(kind.Id) && typed && isRange(*typed);
                               }) ||
           (request.At && std::ranges::any_of(*request.At, isRange));
}

/// As `CurveOfPart`, over ranges.
static RequestedCurve CurveOverRanges(const CurveRequest& request, const PartTable& parts,
                                      const CurveSettings& settings)
{
    RefuseRangesWithoutPoints(request);
    auto curve = CurveOfPart(EndOf(request, false), parts, settings);
    curve.Upper = CurveOfPart(EndOf(request, true), parts, settings).Line;
    curve.Worst = WorstPointsOf(*curve.Part, {curve.Line, *curve.Upper}, request.Code,
                                request.At.value_or(std::vector<std::string>()));
    return curve;
}

RequestedCurve CurveOf(const CurveRequest& request, const PartTable& parts, const CurveSettings& settings)
{
    try
    {
        return HasRanges(request) ? CurveOverRanges(request, parts, settings)
                                  : CurveOfPart(request, parts, settings);
    }
    catch (const RequestError& error)
    {
        throw error.OfPart(request.Part);
    }
    catch (const RunTimeError& error)
    {
        throw error.At(request.Part);
    }
}

#include "requests/CurveRequest.h"

#include "calc/AxisLists.h"
#include "calc/Calculate.h"
#include "calc/ChartNames.h"
#include "calc/ConditionRules.h"
#include "calc/NumberText.h"
#include "partdata/Availability.h"
#include "partdata/RunTimeError.h"
#include "partdata/Windows1252.h"
#include "requests/Names.h"
#include "requests/Quantity.h"
#include "requests/RequestError.h"

#include <algorithm>
#include <array>

namespace
{
/// The keys of the conditions.
constexpr const char* biasKey = "dcBias";
constexpr const char* frequencyKey = "frequency";
constexpr const char* resistanceKey = "heatResistance";
constexpr const char* ambientKey = "ambient";
constexpr const char* parameterKey = "parameterValue";

/// Entries never depend on the user's locale: a script means the same everywhere.
constexpr EntryLocale pointOnly{.CommaIsDecimal = false};

/// The conditions as they would stand in the boxes of the form.
struct Entries
{
    std::string DCBias;
    std::string Frequency;
    std::string HeatResistance;
    std::string Ambient;
    std::string Parameter;
};
} // namespace

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
                       "there is no part \"" + std::string(partNum) + "\"");
}

std::string ShownPartNum(const PartRecord& part, CodeView code, const CurveSettings& settings)
{
    return Utf8FromWindows1252(part.PartNum[static_cast<std::size_t>(code) + settings.NumberingOffset]);
}

std::int16_t ChartTypeOf(std::string_view commandName)
{
    return static_cast<std::int16_t>(IndexOfName(commandName, ChartCommandNames, "chart", "chart"));
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

static std::string EntryFor(const std::optional<std::string>& typed, Quantity quantity, const char* key)
{
    return typed ? EntryInUnit(*typed, quantity, key) : std::string();
}

static Entries EntriesOf(const CurveRequest& request, const PartRecord& part, const std::string& parameter)
{
    Entries entries;
    entries.DCBias = EntryFor(request.DCBias, Quantity::Voltage, biasKey);
    entries.Frequency = EntryFor(request.Frequency, Quantity::Frequency, frequencyKey);
    entries.HeatResistance = request.HeatResistance
                                 ? EntryFor(request.HeatResistance, Quantity::HeatResistance, resistanceKey)
                                 : NumberText(part.Data[Value::HeatResistance]);
    entries.Ambient = request.Ambient ? EntryFor(request.Ambient, Quantity::Temperature, ambientKey)
                                      : (request.Code == CodeView::Eia ? "25" : "20");
    entries.Parameter = EntryFor(request.ParameterValue, QuantityOf(parameter), parameterKey);
    return entries;
}

/// The words of a rule, which the form shows on two lines.
static std::string OnOneLine(std::string words)
{
    std::erase(words, '\r');
    std::ranges::replace(words, '\n', ' ');
    return words;
}

static void Judge(const Refusal& refusal, const char* key, const std::string& entry)
{
    if (refusal)
    {
        throw RequestError(RequestErrorKind::Condition, key, OnOneLine(*refusal)).Of(entry);
    }
}

/// A number that no rule has judged.
static float PlainValue(const std::string& entry, const char* key)
{
    const auto value = ReadEntry(entry.empty() ? "0" : entry);
    if (!value)
    {
        throw RequestError(RequestErrorKind::Condition, key, "is not a number").Of(entry);
    }
    return *value;
}

static bool IsFrequencySweep(const ChartRecord& line)
{
    return line.ChartType == 0 && line.XAxisName == "Frequency";
}

/// Conditions as the form's checks and disabled boxes leave them.
static void JudgeConditions(ChartRecord& line, const Entries& entries, const PartRecord& part, CodeView code)
{
    const auto type = line.ChartType;
    if (type <= 2)
    {
        Judge(RefuseDCBiasVol(entries.DCBias, part, type, pointOnly), biasKey, entries.DCBias);
        line.DCBiasVoltage = PlainValue(entries.DCBias, biasKey);
    }
    if (type <= 1)
    {
        Judge(RefuseHeatResistance(entries.HeatResistance, pointOnly), resistanceKey, entries.HeatResistance);
        line.HeatResistance = PlainValue(entries.HeatResistance, resistanceKey);
    }
    if (type != 2)
    {
        Judge(type == 3 ? RefuseAmbientTemp2(entries.Ambient, part, code, pointOnly)
                        : RefuseAmbientTemp1(entries.Ambient, part, pointOnly),
              ambientKey, entries.Ambient);
        line.AmbientTemp = PlainValue(entries.Ambient, ambientKey);
    }
    if (IsFrequencySweep(line))
    {
        Judge(RefuseParameter(entries.Parameter, pointOnly), parameterKey, entries.Parameter);
        line.ParameterValue = PlainValue(entries.Parameter, parameterKey);
    }
    else if (type == 0)
    {
        Judge(RefuseFrequency(entries.Frequency, pointOnly), frequencyKey, entries.Frequency);
        line.Frequency = PlainValue(entries.Frequency, frequencyKey);
    }
}

static void TakeConditions(ChartRecord& line, const Entries& entries)
{
    line.DCBiasVoltage = PlainValue(entries.DCBias, biasKey);
    line.HeatResistance = PlainValue(entries.HeatResistance, resistanceKey);
    line.Frequency = PlainValue(entries.Frequency, frequencyKey);
    line.AmbientTemp = PlainValue(entries.Ambient, ambientKey);
    line.ParameterValue = PlainValue(entries.Parameter, parameterKey);
}

static void CalculateOrRefuse(const PartRecord& part, ChartRecord& line, CodeView code,
                              const std::string& parameter)
{
    if (const auto refusal = Calculate(part, line, code))
    {
        throw RequestError(RequestErrorKind::Condition, parameterKey, OnOneLine(refusal->Message))
            .Of(parameter)
            .Within(refusal->Limit);
    }
}

/// As `CurveOf`, but that errors do not tell the part.
static RequestedCurve CurveOfPart(const CurveRequest& request, const PartTable& parts,
                                  const CurveSettings& settings)
{
    RequestedCurve curve{.Part = nullptr, .Code = request.Code, .Line = {}};
    ChartRecord& line = curve.Line;
    line.ChartType = ChartTypeOf(request.Chart);
    const auto axes = AxisListsOf(line.ChartType);
    line.XAxisName = axes.XAxes[request.X ? IndexOfName(*request.X, axes.XAxes, "X axis", "x") : 0];
    line.YAxisName = axes.YAxes[request.Y ? IndexOfName(*request.Y, axes.YAxes, "Y axis", "y") : 0];
    line.ParameterName = ParameterNames[request.Parameter ? IndexOfName(*request.Parameter, ParameterNames,
                                                                        "parameter", "parameter")
                                                          : 0];

    const auto shownForm = static_cast<std::size_t>(request.Code) + settings.NumberingOffset;
    const auto index = FindPart(parts, request.Part, shownForm);
    line.PartDataIndex = static_cast<std::int32_t>(index);
    curve.Part = &parts.PartData[index];

    const auto entries = EntriesOf(request, *curve.Part, line.ParameterName);
    if (settings.Unchecked)
    {
        TakeConditions(line, entries);
    }
    else if (!IsAvailable(*curve.Part, line.ChartType))
    {
        throw RequestError(RequestErrorKind::NoData, "chart",
                           "has no data for chart " +
                               std::string(ChartCommandNames[static_cast<std::size_t>(line.ChartType)]));
    }
    else
    {
        JudgeConditions(line, entries, *curve.Part, request.Code);
    }
    CalculateOrRefuse(*curve.Part, line, request.Code, entries.Parameter);
    return curve;
}

RequestedCurve CurveOf(const CurveRequest& request, const PartTable& parts, const CurveSettings& settings)
{
    try
    {
        return CurveOfPart(request, parts, settings);
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

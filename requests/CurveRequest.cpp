#include "requests/CurveRequest.h"

#include "calc/AxisLists.h"
#include "calc/Calculate.h"
#include "calc/ChartNames.h"
#include "calc/ConditionRules.h"
#include "calc/NumberText.h"
#include "partdata/Availability.h"
#include "partdata/RunTimeError.h"
#include "partdata/Windows1252.h"
#include "requests/Quantity.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <span>

namespace
{
/// Text forms of the conditions that are named in messages.
constexpr const char* biasOption = "--dc-bias";
constexpr const char* frequencyOption = "--frequency";
constexpr const char* resistanceOption = "--heat-resistance";
constexpr const char* ambientOption = "--ambient";
constexpr const char* parameterOption = "--parameter";

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

/// "Apparent Power" and "apparent-power" name the same.
static std::string Folded(std::string_view name)
{
    std::string folded(name);
    for (char& c : folded)
    {
        c = c == '-' ? ' ' : FoldCase(c);
    }
    return folded;
}

static std::string ListOf(std::span<const std::string_view> names)
{
    std::string list;
    for (const auto name : names)
    {
        list.append(list.empty() ? "" : ", ").append(name);
    }
    return list;
}

/// The name in the list that is meant. Throws UsageError that tells what and lists the names.
static std::size_t IndexOf(std::string_view name, std::span<const std::string_view> names,
                           const std::string& what)
{
    const auto folded = Folded(name);
    const auto found = std::ranges::find_if(names, [&](auto known) { return Folded(known) == folded; });
    if (found == names.end())
    {
        throw UsageError(what + " \"" + std::string(name) + "\" is none of: " + ListOf(names));
    }
    return static_cast<std::size_t>(found - names.begin());
}

PartTable LoadParts(const std::string& givenFolder)
{
    const auto folder = PartFolder(givenFolder);
    std::error_code ignored;
    if (!std::filesystem::is_directory(folder, ignored))
    {
        throw RunTimeError(RunTimeErrorNumber::PathNotFound).At(folder);
    }
    try
    {
        return LoadPartData(folder);
    }
    catch (const RunTimeError& error)
    {
        const bool isPattern = error.Place().starts_with('*');
        throw isPattern ? error.At((std::filesystem::path(folder) / error.Place()).string()) : error;
    }
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
    throw RefusedRequest("", "there is no part \"" + std::string(partNum) + "\"");
}

std::string ShownPartNum(const PartRecord& part, CodeView code, const CurveSettings& settings)
{
    return Utf8FromWindows1252(part.PartNum[static_cast<std::size_t>(code) + settings.NumberingOffset]);
}

std::int16_t ChartTypeOf(std::string_view commandName)
{
    return static_cast<std::int16_t>(IndexOf(commandName, ChartCommandNames, "chart"));
}

CodeView CodeViewOf(std::string_view name)
{
    static constexpr std::array<std::string_view, 2> codes = {"eia", "jis"};
    return static_cast<CodeView>(IndexOf(name, codes, "code"));
}

std::size_t NumberingOffsetOf(std::string_view name)
{
    static constexpr std::array<std::string_view, 2> numberings = {"global", "previous"};
    return 2 * IndexOf(name, numberings, "numbering");
}

static std::string EntryFor(const std::optional<std::string>& typed, Quantity quantity,
                            const std::string& option)
{
    try
    {
        return typed ? EntryInUnit(*typed, quantity) : std::string();
    }
    catch (const UsageError& error)
    {
        throw UsageError(option + " " + error.what());
    }
}

static Entries EntriesOf(const CurveRequest& request, const PartRecord& part, const std::string& parameter)
{
    Entries entries;
    entries.DCBias = EntryFor(request.DCBias, Quantity::Voltage, biasOption);
    entries.Frequency = EntryFor(request.Frequency, Quantity::Frequency, frequencyOption);
    entries.HeatResistance =
        request.HeatResistance ? EntryFor(request.HeatResistance, Quantity::HeatResistance, resistanceOption)
                               : NumberText(part.Data[31]);
    entries.Ambient = request.Ambient ? EntryFor(request.Ambient, Quantity::Temperature, ambientOption)
                                      : (request.Code == CodeView::Eia ? "25" : "20");
    entries.Parameter = EntryFor(request.ParameterValue, QuantityOf(parameter), parameterOption);
    return entries;
}

static void Judge(const Refusal& refusal, const char* option, const std::string& entry)
{
    if (refusal)
    {
        const std::string where =
            entry.empty() ? std::string(option) + " is not given" : option + (' ' + entry);
        throw RefusedRequest(where, *refusal);
    }
}

/// A number that no rule has judged.
static float PlainValue(const std::string& entry, const char* option)
{
    const auto value = ReadEntry(entry.empty() ? "0" : entry);
    if (!value)
    {
        throw RefusedRequest(option + (' ' + entry), "is not a number");
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
        Judge(RefuseDCBiasVol(entries.DCBias, part, type, pointOnly), biasOption, entries.DCBias);
        line.DCBiasVoltage = PlainValue(entries.DCBias, biasOption);
    }
    if (type <= 1)
    {
        Judge(RefuseHeatResistance(entries.HeatResistance, pointOnly), resistanceOption,
              entries.HeatResistance);
        line.HeatResistance = PlainValue(entries.HeatResistance, resistanceOption);
    }
    if (type != 2)
    {
        Judge(type == 3 ? RefuseAmbientTemp2(entries.Ambient, part, code, pointOnly)
                        : RefuseAmbientTemp1(entries.Ambient, part, pointOnly),
              ambientOption, entries.Ambient);
        line.AmbientTemp = PlainValue(entries.Ambient, ambientOption);
    }
    if (IsFrequencySweep(line))
    {
        Judge(RefuseParameter(entries.Parameter, pointOnly), parameterOption, entries.Parameter);
        line.ParameterValue = PlainValue(entries.Parameter, parameterOption);
    }
    else if (type == 0)
    {
        Judge(RefuseFrequency(entries.Frequency, pointOnly), frequencyOption, entries.Frequency);
        line.Frequency = PlainValue(entries.Frequency, frequencyOption);
    }
}

static void TakeConditions(ChartRecord& line, const Entries& entries)
{
    line.DCBiasVoltage = PlainValue(entries.DCBias, biasOption);
    line.HeatResistance = PlainValue(entries.HeatResistance, resistanceOption);
    line.Frequency = PlainValue(entries.Frequency, frequencyOption);
    line.AmbientTemp = PlainValue(entries.Ambient, ambientOption);
    line.ParameterValue = PlainValue(entries.Parameter, parameterOption);
}

static void Calculate(const PartRecord& part, ChartRecord& line, CodeView code, const std::string& parameter)
{
    if (line.ChartType >= static_cast<std::int16_t>(ChartType::CapacitanceTemperature))
    {
        CalculateDataS(part, line, code);
        return;
    }
    if (const auto refusal = CalculateDataT(part, line))
    {
        throw RefusedRequest(parameterOption + (' ' + parameter), refusal->Message, refusal->Limit);
    }
}

RequestedCurve CurveOf(const CurveRequest& request, const PartTable& parts, const CurveSettings& settings)
{
    RequestedCurve curve{.Part = nullptr, .Code = request.Code, .Line = {}};
    ChartRecord& line = curve.Line;
    line.ChartType = ChartTypeOf(request.Chart);
    const auto axes = AxisListsOf(line.ChartType);
    line.XAxisName = axes.XAxes[request.X ? IndexOf(*request.X, axes.XAxes, "X axis") : 0];
    line.YAxisName = axes.YAxes[request.Y ? IndexOf(*request.Y, axes.YAxes, "Y axis") : 0];
    line.ParameterName =
        ParameterNames[request.Parameter ? IndexOf(*request.Parameter, ParameterNames, "parameter") : 0];

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
        throw RefusedRequest("",
                             "has no data for chart " +
                                 std::string(ChartCommandNames[static_cast<std::size_t>(line.ChartType)]));
    }
    else
    {
        JudgeConditions(line, entries, *curve.Part, request.Code);
    }
    Calculate(*curve.Part, line, request.Code, entries.Parameter);
    return curve;
}

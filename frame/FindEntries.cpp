#include "frame/FindEntries.h"

#include "calc/Conditions.h"
#include "calc/NumberText.h"
#include "find/QuestionRules.h"
#include "requests/PartList.h"
#include "requests/RangeEntry.h"
#include "requests/RequestError.h"
#include "requests/ToleranceEntry.h"
#include "requests/UnitEntry.h"

#include <algorithm>
#include <array>
#include <limits>

namespace
{
/// Stands for a text that is no number, so that the rules refuse it in their words.
constexpr float noNumber = std::numeric_limits<float>::quiet_NaN();

/// Two lines of a message as one.
std::string OnOneLine(std::string message)
{
    const auto end = message.find("\r\n");
    return end == std::string::npos ? message : message.replace(end, 2, " ");
}

/// Reads the entries of one window, and notes which of them it is at.
class Reader
{
public:
    Reader(const FindEntries& typedEntries, const PartTable& partTable)
        : entries(typedEntries)
        , parts(partTable)
    {
    }

    /// Throws RequestError.
    FindAsked Read()
    {
        FindAsked asked;
        ReadFilter(asked.Filter);
        ReadPoint(asked.Question.At);
        ReadWants(asked.Question.Wanted);
        asked.Candidates = FilterParts(parts, asked.Filter);
        return asked;
    }

    /// The entry that was read last.
    std::string_view Control() const { return control; }

private:
    void ReadFilter(PartFilter& filter)
    {
        filter.Text = entries.PartNum;
        filter.LargestSize = entries.MaxSize;
        filter.Tcc = entries.Tcc.empty() ? std::nullopt : std::optional(entries.Tcc);
        filter.RatedVoltage = RangeOf("FindRatedVol", entries.RatedVol, Quantity::DCVoltage);
        filter.Capacitance = RangeOf("FindCap", entries.Cap, Quantity::Capacitance);
        filter.Code = entries.View;
        filter.TakesPartsWithoutData = true;
    }

    void ReadPoint(OperatingPoint& at)
    {
        at.View = entries.View;
        at.BiasVolts = ConditionOf("FindDCBiasVol", entries.DCBiasVol, Quantity::DCVoltage).value_or(0.0F);
        at.Tolerance = Tolerance();
        at.AmbientC = ConditionOf("FindAmbientTemp", entries.AmbientTemp, Quantity::Temperature)
                          .value_or(ReferenceC(entries.View));
        RefuseAmbientWithoutNumber(at.AmbientC.Low);
        at.Kilohertz = ConditionOf("FindFrequency", entries.Frequency, Quantity::Frequency);
        if (const auto amperes = NumberOf("FindCurrent", entries.Current, Quantity::Current))
        {
            at.Load = AcLoad{.Kind = Quantity::Current, .Value = *amperes};
        }
        at.HeatResistance = NumberOf("FindHeatResistance", entries.HeatResistance, Quantity::HeatResistance);
    }

    void ReadWants(Wants& wanted)
    {
        wanted.LeastCapacitance = NumberOf("FindMinCap", entries.MinCap, Quantity::Capacitance);
        wanted.LeastLeft = NumberOf("FindMinLeft", entries.MinLeft, Quantity::CapacitanceChange);
        wanted.MostRise = NumberOf("FindMaxRise", entries.MaxRise, Quantity::TemperatureRise);
        wanted.NeedsMeasures = entries.MaxSize.has_value();
        if (entries.IsParallel)
        {
            wanted.Parallel = Bank{.IsFewest = true};
        }
    }

    /// Every other ambient temperature is the parts' affair.
    static void RefuseAmbientWithoutNumber(float celsius)
    {
        if (celsius != celsius)
        {
            throw RequestError(RequestErrorKind::Condition, "",
                               RefuseClassAmbient("", {}, CodeView::Eia, {}).value_or(""));
        }
    }

    std::optional<float> NumberOf(std::string_view name, const std::string& typed, Quantity quantity)
    {
        control = name;
        if (IsBlank(typed))
        {
            return std::nullopt;
        }
        const auto number = ReadEntry(EntryInUnit(InOwnUnit(typed, quantity), quantity));
        return number.value_or(noNumber);
    }

    /// A value, or a range of it.
    std::optional<ConditionRange> ConditionOf(std::string_view name, const std::string& typed,
                                              Quantity quantity)
    {
        control = name;
        const auto text = InOwnUnit(typed, quantity);
        if (!IsBlank(text) && RangeTypedAs(text, quantity))
        {
            return ConditionRangeOf(text, quantity);
        }
        return NumberOf(name, typed, quantity);
    }

    CapacitanceTolerance Tolerance()
    {
        control = "FindTolerance";
        const auto text = InOwnUnit(entries.Tolerance, Quantity::CapacitanceChange);
        return IsBlank(text) ? CapacitanceTolerance() : ToleranceOf(text);
    }

    std::optional<ValueRange> RangeOf(std::string_view name, const std::string& typed, Quantity quantity)
    {
        control = name;
        if (IsBlank(typed))
        {
            return std::nullopt;
        }
        const auto dots = typed.find("..");
        if (dots == std::string::npos)
        {
            return RangeInUnit(InOwnUnit(typed, quantity), quantity);
        }
        return RangeInUnit(InOwnUnit(typed.substr(0, dots), quantity) + ".." +
                               InOwnUnit(typed.substr(dots + 2), quantity),
                           quantity);
    }

    static bool IsBlank(const std::string& typed)
    {
        return typed.find_first_not_of(' ') == std::string::npos;
    }

    /// The entry with a point as decimal sign, and a bare capacitance with its unit.
    std::string InOwnUnit(std::string typed, Quantity quantity) const
    {
        if (entries.CommaIsDecimal)
        {
            std::ranges::replace(typed, ',', '.');
        }
        const bool isBare = quantity == Quantity::Capacitance && ReadEntry(typed);
        return isBare ? typed + "uF" : typed;
    }

    const FindEntries& entries;
    const PartTable& parts;
    std::string_view control;
};

/// The control of an entry that a rule names by its key.
std::string_view ControlOf(std::string_view key)
{
    static constexpr std::array<std::pair<std::string_view, std::string_view>, 8> controls = {{
        {"dcBias", "FindDCBiasVol"},
        {"tolerance", "FindTolerance"},
        {"heatResistance", "FindHeatResistance"},
        {"frequency", "FindFrequency"},
        {"parameter", "FindCurrent"},
        {"minCapacitance", "FindMinCap"},
        {"minLeft", "FindMinLeft"},
        {"maxRise", "FindMaxRise"},
    }};
    return std::ranges::find(controls, key, &std::pair<std::string_view, std::string_view>::first)->second;
}

/// The refusal beside its box, whose label has its own unit of capacitance.
RefusedEntry RefusedFor(const QuestionRefusal& refusal)
{
    constexpr std::string_view inRules = "[pF]";
    std::string message = OnOneLine(refusal.Message);
    const auto unit = message.find(inRules);
    if (unit != std::string::npos)
    {
        message.replace(unit, inRules.size(), "[µF]");
    }
    return {.Control = ControlOf(refusal.Key), .Message = std::move(message)};
}

std::string TextOf(const std::optional<float>& value)
{
    return value ? NumberText(*value) : "";
}

std::string TextOf(const std::optional<ConditionRange>& range)
{
    if (!range)
    {
        return "";
    }
    return NumberText(range->Low) + (range->IsPoint() ? "" : ".." + NumberText(range->High));
}

/// "10", "-20/+80"; empty for none.
std::string TextOf(const CapacitanceTolerance& tolerance)
{
    if (tolerance == CapacitanceTolerance())
    {
        return "";
    }
    return tolerance.Down == tolerance.Up
               ? NumberText(tolerance.Up)
               : '-' + NumberText(tolerance.Down) + "/+" + NumberText(tolerance.Up);
}

float LargestRatingOf(const std::vector<const PartRecord*>& parts)
{
    float largest = 0;
    for (const PartRecord* part : parts)
    {
        largest = std::max(largest, part->Data[Value::RatedVoltage]);
    }
    return largest;
}
} // namespace

FindEntries EntriesOf(const FindQuestion& question)
{
    constexpr double picofaradsPerMicrofarad = 1e6;
    const auto& at = question.At;
    const auto& wanted = question.Wanted;
    const auto& least = wanted.LeastCapacitance;
    FindEntries entries;
    entries.DCBiasVol = TextOf(std::optional(at.BiasVolts));
    entries.AmbientTemp = TextOf(std::optional(at.AmbientC));
    entries.Frequency = TextOf(at.Kilohertz);
    entries.Tolerance = TextOf(at.Tolerance);
    entries.Current = at.Load ? NumberText(at.Load->Value) : "";
    entries.HeatResistance = TextOf(at.HeatResistance);
    entries.MinCap = least ? NumberText(static_cast<float>(*least / picofaradsPerMicrofarad)) : "";
    entries.MinLeft = TextOf(wanted.LeastLeft);
    entries.MaxRise = TextOf(wanted.MostRise);
    entries.IsParallel = wanted.Parallel && wanted.Parallel->Count > 1;
    return entries;
}

std::variant<FindAsked, RefusedEntry> AskedBy(const FindEntries& entries, const PartTable& parts)
{
    Reader reader(entries, parts);
    try
    {
        auto asked = reader.Read();
        if (const auto refusal = RefuseQuestion(asked.Question, LargestRatingOf(asked.Candidates)))
        {
            return RefusedFor(*refusal);
        }
        return asked;
    }
    catch (const RequestError& error)
    {
        return RefusedEntry{.Control = reader.Control(), .Message = OnOneLine(error.Message())};
    }
}

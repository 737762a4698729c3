#include "cli/FindOptions.h"

#include "calc/Bounds.h"
#include "calc/ChartKinds.h"
#include "calc/NumberText.h"
#include "cli/Command.h"
#include "cli/FilterOptions.h"
#include "cli/RequestOptions.h"
#include "requests/FoundList.h"
#include "requests/Names.h"
#include "requests/RangeEntry.h"
#include "requests/RequestWords.h"
#include "requests/ToleranceEntry.h"
#include "requests/UnitEntry.h"

#include <CLI/CLI.hpp>

#include <algorithm>

FindOptions::Typed FindOptions::TypedFor(std::string_view key) const
{
    const auto found = TypedValues.find(key);
    return found != TypedValues.end() ? found->second : Typed(key, "");
}

namespace
{
constexpr const char* pointGroup = "Operating point";
constexpr const char* wantsGroup = "Wanted";
constexpr const char* resultGroup = "Result";

/// An option that takes a value with a unit.
struct ValueOption
{
    /// "dcBias" of --dc-bias, by which rules name the value too.
    const char* Key;
    Quantity Measures;
    std::string Text;
    const char* Group;
};

/// Hands what is read to `take`, and keeps what was typed for messages.
template <class Read, class Take>
void AddRead(CLI::App& command, FindOptions& options, const ValueOption& option, const Read& read,
             const Take& take)
{
    const std::string key = option.Key;
    AddReadOption(
        command,
        {"--" + OptionNameOf(key), std::string(KindOf(option.Measures).Unit), option.Text, option.Group},
        [read, take, key, measures = option.Measures, &options](const std::string& typed)
        {
            take(read(typed, measures, key));
            options.TypedValues[key] = {key, typed};
        });
}

template <class Take>
void AddValue(CLI::App& command, FindOptions& options, const ValueOption& option, const Take& take)
{
    AddRead(
        command, options, option,
        [](const std::string& typed, Quantity measures, const std::string&)
        { return ValueInUnit(typed, measures); },
        take);
}

/// A value or a range of it.
template <class Take>
void AddRange(CLI::App& command, FindOptions& options, const ValueOption& option, const Take& take)
{
    AddRead(command, options, option, ConditionRangeOf, take);
}

/// Throws UsageError for a second load.
void TakeLoad(FindOptions& options, const char* key, AcLoad load, const std::string& typed)
{
    if (options.Question.At.Load)
    {
        throw UsageError("--current and --parameter are two loads: leave one out");
    }
    options.Question.At.Load = load;
    options.TypedValues[std::string(KindOf(Condition::Parameter).Key)] = {key, typed};
}

void TakeNamedLoad(FindOptions& options, const std::string& typed)
{
    CurveRequest request;
    TakeParameter(request, typed);
    const auto names = ParameterRequestNames();
    const std::vector<std::string_view> known(names.begin(), names.end());
    const auto kind =
        Parameters.at(IndexOfName(request.Parameter.value_or(""), known, "parameter", "parameter"));
    const auto value = request.Conditions[Condition::Parameter].value_or("");
    TakeLoad(options, "parameter", {.Kind = kind, .Value = ValueInUnit(value, kind)}, value);
}

Bank BankOf(const std::string& typed)
{
    const bool isFewest = RequestNameOf(typed) == "auto";
    return {.IsFewest = isFewest, .Count = isFewest ? 1 : WholeNumber("--parallel", typed, MostInParallel)};
}

void AddFilters(CLI::App& command, FindOptions& options)
{
    AddFilterOptions(command, options.Filter);
    AddReadOption(command, {"--max-size", "SIZE", "This size or smaller, such as 1206"},
                  [&options](const std::string& value) { options.MaxSize = value; });
    AddReadOption(command, {"--min-rated-voltage", "V", "This rated voltage or more"},
                  [&options](const std::string& value)
                  { options.MinRatedVoltage = ValueInUnit(value, Quantity::DCVoltage); });
}

void AddPoint(CLI::App& command, FindOptions& options)
{
    OperatingPoint& at = options.Question.At;
    AddRange(command, options,
             {"dcBias", Quantity::DCVoltage,
              "DC bias voltage, or its range, 10.8..13.2V or 12V±10% (left out: 0)", pointGroup},
             [&at](ConditionRange volts) { at.BiasVolts = volts; });
    AddRange(command, options,
             {"ambient", Quantity::Temperature,
              "Ambient temperature, or its range (left out: " + NumberText(ReferenceC(CodeView::Eia)) +
                  " in EIA, " + NumberText(ReferenceC(CodeView::Jis)) + " in JIS code)",
              pointGroup},
             [&options](ConditionRange celsius) { options.Ambient = celsius; });
    AddRange(command, options,
             {"frequency", Quantity::Frequency, "Frequency, 10 to 1000 kHz, or its range", pointGroup},
             [&at](ConditionRange kilohertz) { at.Kilohertz = kilohertz; });
    AddValue(command, options,
             {"heatResistance", Quantity::HeatResistance, "Heat resistance (left out: each part's own)",
              pointGroup},
             [&at](float resistance) { at.HeatResistance = resistance; });
    AddReadOption(command, {"--current", "Arms", "Current that the parts bear", pointGroup},
                  [&options](const std::string& typed)
                  {
                      const float amperes = ValueInUnit(typed, Quantity::Current);
                      TakeLoad(options, "current", {.Kind = Quantity::Current, .Value = amperes}, typed);
                  });
    AddReadOption(command,
                  {"--parameter", "NAME=VALUE",
                   "Load that the parts bear: " + ChoiceOf(ParameterRequestNames()), pointGroup},
                  [&options](const std::string& typed) { TakeNamedLoad(options, typed); });
    AddReadOption(
        command,
        {"--tolerance", "%",
         "Tolerance of the capacitance, 10 or -20/+80, by which the least and the most of it are told",
         pointGroup},
        [&options](const std::string& typed)
        {
            options.Question.At.Tolerance = ToleranceOf(typed);
            options.TypedValues["tolerance"] = {"tolerance", typed};
        });
}

void AddWants(CLI::App& command, FindOptions& options)
{
    Wants& wanted = options.Question.Wanted;
    AddValue(
        command, options,
        {"minCapacitance", Quantity::Capacitance, "Capacitance at the operating point at least", wantsGroup},
        [&wanted](float picofarads) { wanted.LeastCapacitance = picofarads; });
    AddValue(command, options,
             {"minWarmCapacitance", Quantity::Capacitance,
              "Capacitance at the temperature that the load brings the part to, at least", wantsGroup},
             [&wanted](float picofarads) { wanted.LeastWarmCapacitance = picofarads; });
    AddValue(
        command, options,
        {"minLeft", Quantity::CapacitanceChange, "Percentage of the capacitance left at least", wantsGroup},
        [&wanted](float percent) { wanted.LeastLeft = percent; });
    AddValue(command, options,
             {"maxRise", Quantity::TemperatureRise,
              "Temperature rise that the load may bring (left out: the recommended one)", wantsGroup},
             [&wanted](float celsius) { wanted.MostRise = celsius; });
    AddValue(command, options,
             {"maxLossResistance", Quantity::LossResistance, "Loss resistance of a single part at most",
              wantsGroup},
             [&wanted](float milliohms) { wanted.MostLossResistance = milliohms; });
    AddReadOption(command,
                  {"--parallel", "N|auto",
                   "Equal parts in parallel, 1 to 100, or auto for as few as will do (left out: 1)",
                   wantsGroup},
                  [&wanted](const std::string& typed) { wanted.Parallel = BankOf(typed); });
}

void AddResult(CLI::App& command, FindOptions& options)
{
    const auto names = FoundColumnNames();
    AddReadOption(
        command,
        {"--sort", "KEY[,KEY...]",
         "Order by " + ChoiceOf({names.begin(), names.end()}) + "; downwards with a hyphen before the key",
         resultGroup},
        [&options](const std::string& value) { options.Sort = value; });
    AddLimitOption(command, options.Limit, resultGroup);
}
} // namespace

void AddFindOptions(CLI::App& command, FindOptions& options)
{
    AddFilters(command, options);
    AddPoint(command, options);
    AddWants(command, options);
    AddResult(command, options);
    AddCodeOption(command, options.Question.At.View);
    AddNumberingOption(command, options.Settings);
    AddDataOption(command, options.DataFolder);
    AddFormatOption(command, options.Format, {FoundListFormats().begin(), FoundListFormats().end()});
    AddOutputOption(command, options.OutputFile);
}

void FinishQuestion(FindOptions& options)
{
    OperatingPoint& at = options.Question.At;
    at.AmbientC = options.Ambient.value_or(ReferenceC(at.View));
    const bool isPower =
        at.Load && at.Load->Kind != Quantity::Current && at.Load->Kind != Quantity::RmsVoltage;
    if (isPower && !at.IsPoint())
    {
        throw UsageError("--parameter " + RequestNameOf(NameOf(at.Load->Kind)) +
                         " takes no ranges of conditions: leave one out");
    }
    options.Question.Wanted.NeedsMeasures = options.MaxSize.has_value();
    if (options.MinRatedVoltage)
    {
        auto range = options.Filter.RatedVoltage.value_or(ValueRange());
        range.Lowest = std::max(range.Lowest, *options.MinRatedVoltage);
        options.Filter.RatedVoltage = range;
    }
}

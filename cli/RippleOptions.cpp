#include "cli/RippleOptions.h"

#include "cli/Command.h"
#include "cli/FileArguments.h"
#include "cli/FilterOptions.h"
#include "cli/RequestOptions.h"
#include "cli/RequestWords.h"
#include "find/QuestionRules.h"
#include "requests/ConverterEntry.h"
#include "requests/Names.h"
#include "requests/StressFormats.h"
#include "requests/UnitEntry.h"

#include <CLI/CLI.hpp>

namespace
{
constexpr const char* recordGroup = "Waveform";
constexpr const char* converterGroup = "Converter in place of a waveform";
constexpr const char* pointGroup = "Operating point";

void AddTime(CLI::App& command, const std::string& name, const std::string& text,
             std::optional<double>& target)
{
    AddReadOption(command, {name, "s", text, recordGroup},
                  [&target](const std::string& typed)
                  { target = StoredNumberInUnit(typed, Quantity::Time); });
}

/// "2us" or "500kHz" in s.
double PeriodOf(const std::string& typed)
{
    const bool isFrequency = RequestNameOf(typed).ends_with("hz");
    const double value = StoredNumberInUnit(typed, isFrequency ? Quantity::Frequency : Quantity::Time);
    if (!(value > 0))
    {
        throw Failure("--period " + typed + ": Please enter a Number above 0");
    }
    return isFrequency ? 1 / value : value;
}

void AddRecord(CLI::App& command, RippleOptions& options)
{
    TakeInputFile(*command
                       .add_option("waveform", options.Waveform,
                                   "Text of a simulator or an oscilloscope; - is standard input")
                       ->type_name("WAVEFORM"));
    AddReadOption(command, {"--column", "NAME", "Column of the current, by its name or number", recordGroup},
                  [&options](const std::string& typed) { options.Column = typed; });
    AddReadOption(command,
                  {"--voltage", "NAME", "Column of the voltage, whose mean is the DC bias", recordGroup},
                  [&options](const std::string& typed) { options.Voltage = typed; });
    AddTime(command, "--from", "Begin of what is looked at (left out: of the record)", options.Wishes.From);
    AddTime(command, "--to", "End of what is looked at (left out: of the record)", options.Wishes.To);
    AddReadOption(command, {"--period", "s|Hz", "Period or frequency (left out: found)", recordGroup},
                  [&options](const std::string& typed) { options.Wishes.Period = PeriodOf(typed); });
    AddReadOption(command, {"--periods", "N", "The last so many periods", recordGroup},
                  [&options](const std::string& typed)
                  {
                      constexpr int most = 1'000'000'000;
                      options.Wishes.Periods =
                          static_cast<std::size_t>(WholeNumber("--periods", typed, most));
                  });
    command.add_flag("--whole", options.Wishes.IsWhole, "All that is looked at is one period")
        ->group(recordGroup);
}

void TakeConverter(RippleOptions& options, ConverterKind kind, const std::string& typed)
{
    if (options.Source)
    {
        throw UsageError("--buck, --boost and --flyback are several converters: leave one");
    }
    try
    {
        options.Source = ConverterOf(kind, typed);
    }
    catch (const RequestError& error)
    {
        // What is impossible is no wrong command line.
        throw CommandError(StatusOf(error), WordsOf(error));
    }
}

void AddConverter(CLI::App& command, RippleOptions& options)
{
    for (const ConverterName& kind : ConverterNames)
    {
        const auto name = std::string(kind.Name);
        const auto turns = kind.Id == ConverterKind::Flyback ? " n=..." : "";
        AddReadOption(command,
                      {"--" + name, "DATA",
                       "\"vin=... vout=... iout=... f=... l=..." + std::string(turns) + "\"", converterGroup},
                      [&options, id = kind.Id](const std::string& typed)
                      { TakeConverter(options, id, typed); });
    }
    AddReadOption(command,
                  {"--side", "SIDE", "input or output (left out: the one of pulses)", converterGroup},
                  [&options](const std::string& typed) { options.Side = ConverterSideOf(typed); });
}

void AddCondition(CLI::App& command, RippleOptions& options, Condition condition, const std::string& text)
{
    const auto& kind = KindOf(condition);
    AddReadOption(
        command, {"--" + OptionNameOf(kind.Key), std::string(KindOf(*kind.Measures).Unit), text, pointGroup},
        [&options, condition](const std::string& typed) { options.Request.Conditions[condition] = typed; });
}

/// Throws UsageError for what is no rise, Failure for one that no part permits.
float MostRiseOf(const std::string& typed)
{
    FindQuestion question;
    question.Wanted.MostRise = ValueInUnit(typed, Quantity::TemperatureRise);
    if (const auto refusal = RefuseQuestion(question, 0))
    {
        throw Failure("--max-rise " + typed + ": " + refusal->Message);
    }
    return *question.Wanted.MostRise;
}

void AddPoint(CLI::App& command, RippleOptions& options)
{
    auto& request = options.Request;
    command.add_option("--part", request.Parts, "Parts that bear the current, in any of their forms")
        ->type_name("PART")
        ->group(pointGroup);
    AddReadOption(command,
                  {"--parallel", "N", "Equal parts that share the current (left out: 1)", pointGroup},
                  [&request](const std::string& typed)
                  { request.Parallel = WholeNumber("--parallel", typed, MostInParallel); });
    AddCondition(command, options, Condition::DCBias,
                 "DC bias voltage (left out: 0; a converter's: that of its side)");
    AddCondition(command, options, Condition::AmbientTemperature,
                 "Ambient temperature (left out: 25 in EIA, 20 in JIS code)");
    AddCondition(command, options, Condition::HeatResistance, "Heat resistance (left out: each part's own)");
    AddReadOption(command,
                  {"--max-rise", "C", "Rise that is permitted (left out: the recommended one)", pointGroup},
                  [&request](const std::string& typed) { request.MostRise = MostRiseOf(typed); });
    AddReadOption(command, {"--lines", "N", "So many lines of the current at most (left out: 10)", "Result"},
                  [&request](const std::string& typed)
                  {
                      constexpr int most = 100000;
                      request.MostLines = static_cast<std::size_t>(WholeNumber("--lines", typed, most));
                  });
}
} // namespace

void AddRippleOptions(CLI::App& command, RippleOptions& options)
{
    AddRecord(command, options);
    AddConverter(command, options);
    AddPoint(command, options);
    AddCodeOption(command, options.Request.Code);
    AddNumberingOption(command, options.Settings);
    AddDataOption(command, options.DataFolder);
    AddFormatOption(command, options.Format, {StressFormats().begin(), StressFormats().end()});
    AddOutputOption(command, options.OutputFile);
}

/// `tavik-cli ripple`: what a current of any shape does to parts.

#include "calc/NumberText.h"
#include "cli/Command.h"
#include "cli/Commands.h"
#include "cli/FileArguments.h"
#include "cli/HelpText.h"
#include "cli/Output.h"
#include "cli/RippleOptions.h"
#include "files/InputFile.h"
#include "partdata/OneLine.h"
#include "requests/StressFormats.h"
#include "stress/WaveformError.h"
#include "stress/WaveformTable.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <iterator>

static constexpr const char* examples = R"(Examples:
  tavik-cli ripple buck.txt --column "@r.xc1.rs[i]" --part KTS32XB51E106MA01 --dc-bias 12V --ambient 45C
  tavik-cli ripple scope.csv --column 2 --voltage 3 --part KTS32XB51E106MA01 --period 500kHz
  tavik-cli ripple --buck "vin=12 vout=3.3 iout=5 f=500kHz l=2.2uH" --part KTS32XB51E106MA01 --parallel 2
  tavik-cli ripple --flyback "vin=48 vout=5 iout=3 f=250kHz l=40uH n=4"

)";

static std::string Help()
{
    return examples +
           Wrapped(
               "The current is taken apart over whole periods into its lines, and each heats by the part's "
               "law. "
               "Lines above 1 MHz heat as at 1 MHz, and below 10 kHz the law goes on; more than a tenth of "
               "the "
               "rise there is told, and more than half leaves no rise. The current of a waveform divided by "
               "--parallel is that of one part. A current that does not repeat, or is not settled, is "
               "refused: "
               "--from, --to, --period, --periods and --whole say what counts. A converter's currents are "
               "those "
               "of ideal switches; without --part both sides are told.");
}

/// Throws UsageError for options that do not go together.
static void CheckOptions(const RippleOptions& options)
{
    if (options.Waveform.empty() != options.Source.has_value())
    {
        throw UsageError(options.Source ? "ripple wants a waveform or a converter, not both"
                                        : "ripple wants a waveform, or --buck, --boost or --flyback");
    }
    if (!options.Source && options.Request.Parts.empty())
    {
        throw UsageError("ripple wants --part");
    }
    if (options.Voltage && options.Request.Conditions[Condition::DCBias])
    {
        throw UsageError("--voltage and --dc-bias are two biases: leave one out");
    }
}

static std::string TextOf(const std::string& file)
{
    if (file != StandardStream)
    {
        return ReadBytes(file, MostWaveformBytes);
    }
    std::string text{std::istreambuf_iterator<char>(std::cin), {}};
    if (text.size() > MostWaveformBytes)
    {
        throw WaveformError("there are more than " + std::to_string(MostWaveformBytes) + " bytes");
    }
    return text;
}

static StressReport ReportOfRecord(RippleOptions& options)
{
    try
    {
        const auto table = ReadWaveforms(TextOf(options.Waveform));
        const auto& column = ColumnOf(table, options.Column);
        const auto load = LoadOfRecord(table.WaveformOf(column), options.Wishes);
        if (options.Voltage)
        {
            const auto voltage = table.WaveformOf(ColumnOf(table, *options.Voltage));
            const double mean = voltage.FiguresOf(load.Record->Counted.Span).Mean;
            options.Request.Conditions[Condition::DCBias] = NumberText(static_cast<float>(mean));
        }
        return {.Name = column.Name, .Load = load};
    }
    catch (const WaveformError& error)
    {
        throw Failure((options.Waveform == StandardStream ? "standard input" : options.Waveform) + ": " +
                      error.what());
    }
}

static StressReport ReportOfSide(const Converter& converter, ConverterSide side)
{
    return {.Name = "", .Source = ConverterSource{converter, side}, .Load = LoadOfConverter(converter, side)};
}

/// The side that is asked for; both where no part is.
static std::vector<StressReport> ReportsOfConverter(RippleOptions& options)
{
    const auto& converter = *options.Source;
    if (options.Request.Parts.empty() && !options.Side)
    {
        return {ReportOfSide(converter, ConverterSide::Input),
                ReportOfSide(converter, ConverterSide::Output)};
    }
    const auto side = options.Side.value_or(KindOf(converter.Kind).PulsedSide);
    auto& bias = options.Request.Conditions[Condition::DCBias];
    bias = bias.value_or(NumberText(static_cast<float>(converter.VoltageOf(side))));
    return {ReportOfSide(converter, side)};
}

static void TellRipple(RippleOptions& options)
{
    CheckOptions(options);
    auto inputs = PartFilesOf(PartFolder(options.DataFolder));
    if (!options.Source)
    {
        inputs.emplace_back(options.Waveform);
    }
    RefuseInputAsOutput(options.OutputFile, inputs);
    const auto parts = options.Request.Parts.empty() ? PartTable() : LoadParts(options.DataFolder);
    auto reports = options.Source ? ReportsOfConverter(options) : std::vector{ReportOfRecord(options)};
    reports.front().Parts = StressedPartsOf(options.Request, reports.front().Load, parts, options.Settings);
    Output output(options.OutputFile);
    output.Write(
        FormatNamed(StressFormats(), options.Format).Write(reports, options.Request.Code, options.Settings));
    output.Finish();
}

void AddRippleCommand(CLI::App& app)
{
    const auto options = std::make_shared<RippleOptions>();
    auto& command = *app.add_subcommand("ripple", "Tells what a current of any shape does to parts");
    command.footer(Help());
    AddRippleOptions(command, *options);
    command.callback([options] { TellRipple(*options); });
}

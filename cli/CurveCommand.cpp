/// `tavik-cli curve`: one curve, or a stream of them.

#include "calc/ChartKinds.h"
#include "cli/Command.h"
#include "cli/Commands.h"
#include "cli/FileArguments.h"
#include "cli/Output.h"
#include "cli/RequestOptions.h"
#include "cli/RequestStream.h"
#include "formkit/Texts.h"
#include "requests/CurveFormats.h"
#include "requests/JsonRequest.h"
#include "requests/Names.h"
#include "terminal/HelpText.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace
{
struct CurveOptions
{
    CurveRequest Request;
    CurveSettings Settings;
    std::string DataFolder;
    std::string Requests;
    std::string Format;
    std::string OutputFile;
    std::optional<std::string> Date;
};
} // namespace

static constexpr const char* examples = R"(Examples:
  tavik-cli curve KTS31NB51E106MA01 --chart temperature-rise --dc-bias 12V --frequency 300kHz
  tavik-cli curve KTS31NB51E106MA01 --chart temperature-rise --x Frequency --dc-bias 12V \
      --parameter current=1.5Arms --format csv --output rise.csv
  tavik-cli curve KTS31NR71A226KA01 --chart loss-resistance --at 100kHz,300kHz
  echo '{"part":"KTS31NB51E106MA01","chart":"capacitance-dc-voltage"}' | tavik-cli curve --requests -

)";

static std::string Help()
{
    return examples +
           Wrapped(
               "Axes that are left out are those that the form shows first. A request line has the keys " +
               ChoiceOf(RequestKeys(), "and") +
               "; an answer echoes the id. --at and --where, and the chart loss-resistance, are answered as "
               "CSV, if no format is given, or JSON. Bare numbers of --at and --where are in the unit in "
               "which the axis is entered.");
}

/// Standard error tells people that some requests have no curve; scripts read it from the answers.
static void AnswerAll(const CurveOptions& options)
{
    if (!options.Format.empty() && options.Format != "json")
    {
        throw UsageError("--requests is answered in JSON only: leave out --format " + options.Format);
    }
    auto inputs = PartFilesOf(PartFolder(options.DataFolder));
    inputs.emplace_back(options.Requests);
    RefuseInputAsOutput(options.OutputFile, inputs);
    const auto parts = LoadParts(options.DataFolder);
    Output output(options.OutputFile);
    const auto counts = AnswerRequests(options.Requests, options.Request, parts, options.Settings, output);
    output.Finish();
    if (counts.WithoutCurve > 0)
    {
        throw Failure(options.Requests + ": " + std::to_string(counts.WithoutCurve) + " of " +
                      std::to_string(counts.Requests) + " requests have no curve; their lines tell why");
    }
}

/// The format that is asked for, else the first that can hold the answer. Throws UsageError for a data file
/// of what it has no room for.
static const CurveFormat& FormatOf(const CurveOptions& options)
{
    const bool wantsPoints = options.Request.At || options.Request.Where;
    const bool hasDataFile = ChartKindOf(ChartTypeOf(options.Request.Chart)).IsOnForm;
    if (options.Format == "tvk" && (wantsPoints || !hasDataFile))
    {
        const auto what = wantsPoints ? "--at and --where are" : "--chart " + options.Request.Chart + " is";
        throw UsageError(what + " answered in csv or json: leave out --format tvk");
    }
    const bool isCsv = options.Format.empty() && (wantsPoints || !hasDataFile);
    return FormatNamed(CurveFormats(), isCsv ? "csv" : options.Format);
}

static void WriteOne(const CurveOptions& options)
{
    if (options.Request.Part.empty() || options.Request.Chart.empty())
    {
        throw UsageError(options.Request.Part.empty() ? "curve wants a part number, or --requests"
                                                      : "curve wants --chart");
    }
    const auto& format = FormatOf(options);
    RefuseInputAsOutput(options.OutputFile, PartFilesOf(PartFolder(options.DataFolder)));
    const auto parts = LoadParts(options.DataFolder);
    auto settings = options.Settings;
    settings.Date = options.Date ? Windows1252FromUtf8(*options.Date) : TodayInFile();
    const auto curve = CurveOf(options.Request, parts, settings);
    const auto text = format.Write(curve, settings);
    Output output(options.OutputFile);
    output.Write(text);
    output.Finish();
    TellUnused(curve, options.Request.Part);
}

/// "1,2.5" as its pieces.
static std::vector<std::string> PiecesOf(const std::string& text)
{
    std::vector<std::string> pieces(1);
    for (const char c : text)
    {
        if (c == ',')
        {
            pieces.emplace_back();
        }
        else
        {
            pieces.back() += c;
        }
    }
    return pieces;
}

static void AddPointOptions(CLI::App& command, CurveRequest& request)
{
    command
        .add_option_function<std::string>(
            "--at", [&request](const std::string& text) { request.At = PiecesOf(text); },
            "Values at these X in place of the curve, for example 12V,24V; over ranges of conditions or of "
            "X, "
            "such as 10.8..13.2V, the least and the most")
        ->type_name("X[,X...]")
        ->group("Points");
    command
        .add_option_function<std::string>(
            "--where", [&request](const std::string& text) { request.Where = PiecesOf(text); },
            "Every X at which Y has these values, for example -50%")
        ->type_name("Y[,Y...]")
        ->group("Points");
}

void AddCurveCommand(CLI::App& app)
{
    const auto options = std::make_shared<CurveOptions>();
    auto& command = *app.add_subcommand("curve", "Computes one curve, or one for each line of requests");
    command.footer(Help());
    command.add_option("part", options->Request.Part, "Part number in any of its forms, any letter case")
        ->type_name("PART");
    AddRequestOptions(command, options->Request);
    AddPointOptions(command, options->Request);
    AddNumberingOption(command, options->Settings);
    AddUncheckedOption(command, options->Settings);
    AddDataOption(command, options->DataFolder);
    TakeInputFile(*command
                       .add_option("--requests", options->Requests,
                                   "File of requests, one JSON object a line, or - for standard input")
                       ->type_name("FILE|-"));
    AddFormatOption(command, options->Format, {CurveFormats().begin(), CurveFormats().end()});
    AddOutputOption(command, options->OutputFile);
    command
        .add_option_function<std::string>(
            "--date", [options](const std::string& text) { options->Date = text; },
            "Date in the data file (left out: today)")
        ->type_name("TEXT");
    command.callback([options] { options->Requests.empty() ? WriteOne(*options) : AnswerAll(*options); });
}

/// `tavik-cli chart`: up to six lines on one picture.

#include "chart/drawing/PainterSheet.h"
#include "chart/drawing/PdfDate.h"
#include "cli/Command.h"
#include "cli/Commands.h"
#include "cli/Drawing.h"
#include "cli/FileArguments.h"
#include "cli/Output.h"
#include "cli/RequestOptions.h"
#include "cli/SheetPicture.h"
#include "requests/ChartLines.h"
#include "requests/LineOption.h"
#include "requests/Names.h"
#include "terminal/HelpText.h"
#include "terminal/Terminal.h"

#include <CLI/CLI.hpp>
#include <QFileInfo>

#include <algorithm>
#include <charconv>

namespace
{
struct ChartOptions
{
    CurveRequest Common;
    CurveSettings Settings;
    TypedRange Range;
    std::vector<std::string> Parts;
    std::vector<std::string> Lines;
    std::string DataFolder;
    std::string Format;
    std::string OutputFile;
    QSizeF Size = sheetSize;
    std::optional<double> Scale;
};
} // namespace

/// Extent of a picture in either direction, in pixels.
static constexpr double mostPixels = 20000;

static constexpr const char* examples = R"(Examples:
  tavik-cli chart KTS21JB51E106MA01 KTS31NB51E106MA01 KTS32XR71E106KA01 \
      --chart temperature-rise --dc-bias 12V --frequency 300kHz --output rise.png
  tavik-cli chart --chart capacitance-temperature --output bias.svg \
      --line "KTS31NB51E106MA01 dc-bias=0V" --line "KTS31NB51E106MA01 dc-bias=12V"

)";

static std::string Help()
{
    return examples +
           Wrapped("Each PART and each --line is one line of the chart, parts first. --line names a part "
                   "and conditions of its own: " +
                   ListOf(ConditionOptionNames()) + ", and " + ChoiceOf(ParameterRequestNames()) +
                   " for a temperature rise over frequency. All other conditions are those of the "
                   "options.");
}

static bool IsStandardOutput(const ChartOptions& options)
{
    return options.OutputFile.empty() || options.OutputFile == "-";
}

/// True where a picture that is no text would be written to a terminal.
static bool IsForTerminal(const ChartOptions& options, const PictureFormat& format)
{
    return format.Name != "svg" &&
           (IsStandardOutput(options) ? IsTerminal(Stream::Output) : IsTerminalNamed(options.OutputFile));
}

/// The format that --format names, or else the one that the file is named for: "rise.PNG".
static const PictureFormat& FormatOf(const ChartOptions& options)
{
    const auto suffix = QFileInfo(QString::fromLocal8Bit(options.OutputFile.data())).suffix().toLower();
    const auto name = options.Format.empty() ? suffix.toStdString() : options.Format;
    const auto formats = PictureFormats();
    const auto format = std::ranges::find(formats, name, &PictureFormat::Name);
    if (format == formats.end() && IsStandardOutput(options) && options.Format.empty())
    {
        throw UsageError("a picture on standard output needs --format");
    }
    if (format == formats.end())
    {
        throw UsageError("--output \"" + options.OutputFile + "\" ends in none of: ." +
                         ListOf(formats, ", .", &PictureFormat::Name) + "; say which with --format");
    }
    return *format;
}

static QSizeF ExtentOf(const ChartOptions& options, const PictureFormat& format)
{
    const QSizeF extent = options.Size * options.Scale.value_or(format.Scale);
    if (extent.width() < 1 || extent.height() < 1 || extent.width() > mostPixels ||
        extent.height() > mostPixels)
    {
        throw Failure("a picture is from 1 to " + std::to_string(static_cast<int>(mostPixels)) +
                      " pixels wide and high");
    }
    return extent;
}

static QByteArray Draw(const std::vector<RequestedCurve>& curves, const ChartOptions& options,
                       const PictureFormat& format)
{
    std::vector<ChartRecord> lines;
    std::vector<std::string> partNums;
    for (const RequestedCurve& curve : curves)
    {
        lines.push_back(curve.Line);
        partNums.push_back(ShownPartNum(*curve.Part, curve.Code, options.Settings));
    }
    const ChartView view = ViewOf(lines, options.Range);
    const QSizeF extent = ExtentOf(options, format);

    return Drawn([&] { return SheetPicture(view, lines, partNums, extent, format); });
}

static void DrawChart(const ChartOptions& options)
{
    if (options.Common.Chart.empty())
    {
        throw UsageError("chart wants --chart");
    }
    if (options.Parts.empty() && options.Lines.empty())
    {
        throw UsageError("chart wants a part number or a --line");
    }
    const auto& format = FormatOf(options);
    if (IsForTerminal(options, format))
    {
        throw UsageError("a picture is not for a terminal; name a file with --output");
    }
    std::vector<CurveRequest> requests;
    for (const auto& part : options.Parts)
    {
        requests.push_back(options.Common);
        requests.back().Part = part;
    }
    for (const auto& line : options.Lines)
    {
        requests.push_back(RequestOfLine(line, options.Common));
    }
    RefuseInputAsOutput(options.OutputFile, PartFilesOf(PartFolder(options.DataFolder)));
    const auto parts = LoadParts(options.DataFolder);
    const auto curves = CurvesOf(requests, parts, options.Settings);
    const auto draw = [&] { return Draw(curves, options, format); };
    const auto bytes = format.Name == "pdf" ? PdfOfSourceDate(draw) : draw();
    Output output(options.OutputFile);
    output.Write({bytes.data(), static_cast<std::size_t>(bytes.size())});
    output.Finish();
    for (std::size_t i = 0; i < curves.size(); ++i)
    {
        const auto line = curves.size() > 1 ? " (line " + std::to_string(i + 1) + ')' : "";
        TellUnused(curves[i], requests[i].Part + line);
    }
}

/// A whole text as a number above 0.
static double PositiveNumber(std::string_view text, const std::string& option)
{
    double value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size() || !(value > 0))
    {
        throw UsageError(option + " \"" + std::string(text) + "\" is not a number above 0");
    }
    return value;
}

/// "725x248" as an extent.
static QSizeF SizeOf(const std::string& text)
{
    const auto cross = text.find('x');
    if (cross == std::string::npos)
    {
        throw UsageError("--size \"" + text + "\" is not WIDTHxHEIGHT, for example 725x248");
    }
    return {PositiveNumber(std::string_view(text).substr(0, cross), "--size"),
            PositiveNumber(std::string_view(text).substr(cross + 1), "--size")};
}

static void AddRangeEnd(CLI::App& command, const char* name, std::optional<std::string>& end,
                        const char* text)
{
    command
        .add_option_function<std::string>(
            name, [&end](const std::string& typed) { end = typed; }, text)
        ->type_name("VALUE")
        ->group("Picture");
}

static void AddPictureOptions(CLI::App& command, ChartOptions& options)
{
    command
        .add_option_function<std::string>(
            "--size", [&options](const std::string& text) { options.Size = SizeOf(text); },
            "Extent of the picture (725x248, if left out)")
        ->type_name("WIDTHxHEIGHT")
        ->group("Picture");
    command
        .add_option_function<std::string>(
            "--scale",
            [&options](const std::string& text) { options.Scale = PositiveNumber(text, "--scale"); },
            "Enlarges the picture (2 for PNG, 1 for SVG and PDF, if left out)")
        ->type_name("FACTOR")
        ->group("Picture");
    AddRangeEnd(command, "--x-from", options.Range.XFrom, "Left end of the X axis");
    AddRangeEnd(command, "--x-to", options.Range.XTo, "Right end of the X axis");
    AddRangeEnd(command, "--y-from", options.Range.YFrom, "Lower end of the Y axis");
    AddRangeEnd(command, "--y-to", options.Range.YTo, "Upper end of the Y axis");
}

void AddChartCommand(CLI::App& app)
{
    const auto options = std::make_shared<ChartOptions>();
    auto& command = *app.add_subcommand("chart", "Draws up to six lines on one chart, as PNG, SVG or PDF");
    command.footer(Help());
    command.add_option("parts", options->Parts, "Parts to draw with the conditions of the options")
        ->type_name("PART");
    command.add_option("--line", options->Lines, "A line with conditions of its own; see below")
        ->type_name("\"PART NAME=VALUE...\"")
        ->allow_extra_args(false);
    AddRequestOptions(command, options->Common);
    AddPictureOptions(command, *options);
    AddNumberingOption(command, options->Settings);
    AddUncheckedOption(command, options->Settings);
    AddDataOption(command, options->DataFolder);
    AddFormatOption(command, options->Format, {PictureFormats().begin(), PictureFormats().end()},
                    " (left out: as the file is named)");
    AddOutputOption(command, options->OutputFile);
    command.callback([options] { DrawChart(*options); });
}

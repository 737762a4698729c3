/// `tavik-cli ripple`: what a current of any shape does to parts.

#include "cli/Command.h"
#include "cli/Commands.h"
#include "cli/FileArguments.h"
#include "cli/NamedPicture.h"
#include "cli/Output.h"
#include "cli/RequestOptions.h"
#include "files/InputFile.h"
#include "requests/RequestWords.h"
#include "requests/RippleRequest.h"
#include "requests/StressFormats.h"
#include "requests/StressSheet.h"
#include "stress/WaveformError.h"
#include "stress/WaveformTable.h"
#include "terminal/HelpText.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <iterator>

namespace
{
struct RippleOptions
{
    std::string Waveform;
    RippleTexts Texts;
    CurveSettings Settings;
    std::string DataFolder;
    std::string Format;
    std::string OutputFile;
    std::string Picture;
};
} // namespace

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
               "law. Lines above 1 MHz heat as at 1 MHz, and below 10 kHz the law goes on; more than a tenth "
               "of the rise there is told, and more than half leaves no rise. The current of a waveform "
               "divided by --parallel is that of one part. A current that does not repeat, or is not "
               "settled, is refused: --from, --to, --period, --periods and --whole say what counts. A "
               "converter's currents are those of ideal switches; without --part both sides are told. "
               "--picture draws the current, what of it counts, and which frequencies heat.");
}

/// The bytes of a waveform; of a stream no more than tell that it is too large.
static std::string BytesOf(const std::string& file)
{
    if (file != StandardStream)
    {
        InputFile input(file);
        RefuseTooLarge(input.Size());
        return ReadBytes(input, MostWaveformBytes);
    }
    std::string bytes;
    for (std::istreambuf_iterator<char> at(std::cin), end; at != end && bytes.size() <= MostWaveformBytes;
         ++at)
    {
        bytes += *at;
    }
    return bytes;
}

static StressReport ReportOfFile(const std::string& file, RippleRequest& request)
{
    try
    {
        return ReportOfRecord(BytesOf(file), request);
    }
    catch (const WaveformError& error)
    {
        throw Failure(ShownName(file) + ": " + error.what());
    }
}

/// The picture, to be put in place when all is done.
static std::optional<Output> Drawn(const std::vector<StressReport>& reports, const RippleOptions& options)
{
    std::optional<Output> output;
    if (!options.Picture.empty())
    {
        const auto draw = [&](SheetSurface& sheet)
        { DrawStressSheet(reports, options.Texts.Code, options.Settings, sheet); };
        output.emplace(options.Picture)
            .Write(NamedPicture(options.Picture, reports.front().Title(),
                                {StressSheetWidth, StressSheetHeight(reports.size())}, draw));
    }
    return output;
}

static void TellRipple(const RippleOptions& options)
{
    auto texts = options.Texts;
    texts.HasRecord = !options.Waveform.empty();
    auto request = RippleRequestOf(texts);
    auto inputs = PartFilesOf(PartFolder(options.DataFolder));
    if (texts.HasRecord)
    {
        inputs.emplace_back(options.Waveform);
    }
    RefuseInputAsOutput(options.OutputFile, inputs);
    if (!options.Picture.empty())
    {
        RequirePictureName(options.Picture);
        RefuseInputAsOutput(options.Picture, inputs);
        RefuseOneOutput(options.OutputFile, options.Picture);
    }
    const auto parts = texts.Parts.empty() ? PartTable() : LoadParts(options.DataFolder);
    auto reports =
        request.Source ? ReportsOfConverter(request) : std::vector{ReportOfFile(options.Waveform, request)};
    reports.front().Parts = StressedPartsOf(request.Stress, reports.front().Load, parts, options.Settings);
    auto picture = Drawn(reports, options);
    Output output(options.OutputFile);
    output.Write(FormatNamed(StressFormats(), options.Format).Write(reports, texts.Code, options.Settings));
    if (picture)
    {
        picture->Finish();
    }
    output.Finish();
}

void AddRippleCommand(CLI::App& app)
{
    const auto options = std::make_shared<RippleOptions>();
    auto& command = *app.add_subcommand("ripple", "Tells what a current of any shape does to parts");
    command.footer(Help());
    TakeInputFile(*command
                       .add_option("waveform", options->Waveform,
                                   "Text of a simulator or an oscilloscope; - is standard input")
                       ->type_name("WAVEFORM"));
    command.add_option("--part", options->Texts.Parts, "Parts that bear the current, in any of their forms")
        ->type_name("PART")
        ->group("Operating point");
    for (const RippleKey& key : RippleKeys())
    {
        command
            .add_option_function<std::string>(
                "--" + OptionNameOf(key.Key),
                [options, name = std::string(key.Key)](const std::string& text)
                { options->Texts.Values[name] = text; },
                std::string(key.Text))
            ->type_name(std::string(key.Unit))
            ->group(std::string(key.Group));
    }
    command.add_flag("--whole", options->Texts.IsWhole, "All that is looked at is one period")
        ->group("Waveform");
    AddCodeOption(command, options->Texts.Code);
    AddNumberingOption(command, options->Settings);
    AddDataOption(command, options->DataFolder);
    AddFormatOption(command, options->Format, {StressFormats().begin(), StressFormats().end()});
    AddOutputOption(command, options->OutputFile);
    TakeOutputFile(*command.add_option("--picture", options->Picture,
                                       "File for the current and what heats: *.png, *.svg or *.pdf"));
    command.callback([options] { TellRipple(*options); });
}

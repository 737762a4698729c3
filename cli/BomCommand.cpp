/// `tavik-cli bom`: which parts of a bill of materials hold what is asked of them.

#include "board/BomCheck.h"
#include "board/BomFormats.h"
#include "board/FilesBeside.h"
#include "cli/Command.h"
#include "cli/Commands.h"
#include "cli/FileArguments.h"
#include "cli/FilterOptions.h"
#include "cli/Output.h"
#include "cli/RequestOptions.h"
#include "requests/Names.h"
#include "requests/RequestWords.h"
#include "requests/UnitEntry.h"
#include "terminal/HelpText.h"
#include "terminal/Terminal.h"

#include <CLI/CLI.hpp>

namespace
{
struct BomOptions
{
    std::string Bill;
    std::string Conditions;
    BomCells Cells;
    std::vector<ChosenColumn> Columns;
    std::optional<std::string> MaxSize;
    BomSettings Settings;
    CurveSettings Numbering;
    bool IsStrict = false;
    std::string Format;
    std::string DataFolder;
    std::string OutputFile;

    BomNames Names() const { return {ShownName(Bill), Conditions.empty() ? "" : ShownName(Conditions)}; }
    const std::string& FileOf(bool isOfConditions) const { return isOfConditions ? Conditions : Bill; }
};

/// What may be said on the command line for all parts.
constexpr std::array commandFields = {
    BomField::DCBias,         BomField::Ambient,           BomField::Frequency,
    BomField::Current,        BomField::HeatResistance,    BomField::Tolerance,
    BomField::MinCapacitance, BomField::MinLeft,           BomField::MinWarmCapacitance,
    BomField::MaxRise,        BomField::MaxLossResistance, BomField::MaxBias};
} // namespace

static constexpr const char* examples = R"(Examples:
  tavik-cli bom board.csv --conditions rails.csv --suggest
  tavik-cli bom board.csv --dc-bias 12V±10% --ambient -10..65C --min-left 50 --strict
  tavik-cli bom board.csv --conditions rails.csv --format csv --output verdicts.csv

)";

static std::string Help()
{
    return examples +
           Wrapped(
               "The bill is any export with a column of part numbers and one of references; the conditions "
               "stand in a second file, by reference or by net. Ranges of conditions are judged at their "
               "worst. The reserve is what is left of the limit that is nearest to being missed. Status 1: "
               "a part or a net fails; with --strict also where one is unknown or a warning.");
}

static BomTexts TextsOf(const BomOptions& options)
{
    BomTexts texts{.Bill = ReadInput(options.Bill, MostBomBytes)};
    texts.Conditions = options.Conditions.empty()
                           ? std::nullopt
                           : std::optional(ReadInput(options.Conditions, MostBomBytes));
    return texts;
}

/// Tells warnings and faults, and ends the command at faults.
static std::unique_ptr<const CheckedBom> Checked(const BomOptions& options, const PartTable& parts)
{
    const auto waveforms = [&](const std::string& name, bool isOfConditions)
    { return ReadWaveforms(ReadBeside(options.FileOf(isOfConditions), name, MostWaveformBytes)); };
    auto checked = CheckBom(TextsOf(options),
                            {.Columns = options.Columns,
                             .Options = options.Cells,
                             .Settings = options.Settings,
                             .Waveforms = waveforms},
                            parts);
    const auto names = options.Names();
    std::ranges::for_each(checked->Warnings, [&](const auto& warning)
                          { TellLine("tavik-cli: warning: " + RemarkText(warning, names)); });
    std::ranges::for_each(checked->Faults,
                          [&](const auto& fault) { TellLine("tavik-cli: " + RemarkText(fault, names)); });
    if (!checked->Faults.empty())
    {
        throw Failure("");
    }
    return checked;
}

static void TellBom(BomOptions options)
{
    auto inputs = PartFilesOf(PartFolder(options.DataFolder));
    for (const auto& file : {options.Bill, options.Conditions})
    {
        inputs.insert(inputs.end(), file.empty() ? 0 : 1, file);
    }
    RefuseStreamTwice({options.Bill, options.Conditions});
    RefuseInputAsOutput(options.OutputFile, inputs);
    options.Settings.NumberingOffset = options.Numbering.NumberingOffset;
    const auto parts = LoadParts(options.DataFolder);
    options.Settings.LargestSize =
        options.MaxSize ? SizeNamed(parts, *options.MaxSize, options.Settings.View) : std::nullopt;
    if (options.MaxSize && !options.Settings.LargestSize)
    {
        throw Failure("no size \"" + *options.MaxSize + "\"");
    }
    const auto checked = Checked(options, parts);
    const auto& bom = checked->Judged;
    Output output(options.OutputFile);
    output.Write(
        FormatNamed(BomFormats(), options.Format).Write(*checked, options.Settings, options.Names()));
    output.Finish();
    const bool isStrictlyHeld = !bom.Has(BomVerdict::Unknown) && !bom.Has(BomVerdict::Warn);
    if (bom.Has(BomVerdict::Fail) || (options.IsStrict && !isStrictlyHeld))
    {
        throw Failure("");
    }
}

static void AddCells(CLI::App& command, BomOptions& options)
{
    for (const BomField field : commandFields)
    {
        const BomFieldKind& kind = KindOf(field);
        AddReadOption(command,
                      {"--" + RequestNameOf(kind.Name), std::string(KindOf(*kind.Measures).Unit),
                       "For all parts that have no " + std::string(kind.Name) + " of their own",
                       "Conditions and limits"},
                      [&options, field](const std::string& typed)
                      {
                          CheckCell(field, typed);
                          options.Cells[static_cast<std::size_t>(field)] = BomCell{.Text = typed};
                      });
    }
}

static ChosenColumn ColumnOf(const std::string& typed)
{
    const auto equals = typed.find('=');
    const auto field = FieldOfHeading(typed.substr(0, equals));
    if (equals == std::string::npos || !field)
    {
        throw UsageError("--column " + typed + ": not NAME=HEADING, such as \"dc bias=Voltage\"");
    }
    return {.Field = *field, .Heading = typed.substr(equals + 1)};
}

void AddBomCommand(CLI::App& app)
{
    const auto options = std::make_shared<BomOptions>();
    auto& command = *app.add_subcommand("bom", "Checks the capacitors of a bill of materials");
    command.footer(Help());
    TakeInputFile(*command.add_option("bill", options->Bill, "Bill of materials; - is standard input")
                       ->type_name("BOM")
                       ->required());
    TakeInputFile(*command.add_option("--conditions", options->Conditions, "Conditions by reference or net")
                       ->type_name("FILE"));
    AddReadOption(command, {"--column", "NAME=HEADING", "What a column of the bill is", "Reading"},
                  [options](const std::string& typed) { options->Columns.push_back(ColumnOf(typed)); });
    command
        .add_flag("--by-value", options->Settings.IsByValue,
                  "Take parts by size, characteristic, capacitance and rated voltage, too")
        ->group("Reading");
    AddCells(command, *options);
    AddReadOption(command, {"--warn", "%", "A reserve below this is a warning (left out: 10)", "Result"},
                  [options](const std::string& typed)
                  { options->Settings.WarnPercent = ValueInUnit(typed, Quantity::CapacitanceChange); });
    command
        .add_flag("--suggest", options->Settings.IsSuggesting,
                  "Parts that pass in the place of those that fail")
        ->group("Result");
    AddReadOption(command, {"--max-size", "SIZE", "Suggestions up to this size", "Result"},
                  [options](const std::string& typed) { options->MaxSize = typed; });
    command.add_flag("--strict", options->IsStrict, "Status 1 also for unknown parts and warnings")
        ->group("Result");
    AddReadOption(command, {"--sort", "ORDER", "worst or line (left out: worst)", "Result"},
                  [options](const std::string& typed)
                  {
                      constexpr std::array<std::string_view, 2> orders = {"worst", "line"};
                      options->Settings.IsByLine = IndexOfName(typed, orders, "order", "sort") == 1;
                  });
    AddCodeOption(command, options->Settings.View);
    AddNumberingOption(command, options->Numbering);
    AddDataOption(command, options->DataFolder);
    AddFormatOption(command, options->Format, {BomFormats().begin(), BomFormats().end()});
    AddOutputOption(command, options->OutputFile);
    command.callback([options] { TellBom(*options); });
}

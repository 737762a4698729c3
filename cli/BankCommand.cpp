/// `tavik-cli bank`: how parts in parallel share a ripple current.

#include "cli/Command.h"
#include "cli/Commands.h"
#include "cli/FileArguments.h"
#include "cli/Output.h"
#include "cli/RequestOptions.h"
#include "requests/BankFormats.h"
#include "terminal/HelpText.h"
#include "terminal/Terminal.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iterator>

namespace
{
struct BankOptions
{
    BankRequest Request;
    std::vector<std::string> Pieces;
    CurveSettings Settings;
    std::string DataFolder;
    std::string Format;
    std::string OutputFile;
};
} // namespace

static constexpr const char* examples = R"(Examples:
  tavik-cli bank "KTS31NR71A226KA01 x2" KTS31NB51A476MA01 KTS188R71H104KA01 \
      --dc-bias 5V --ambient 45C --frequency 300kHz --current 6Arms
  tavik-cli bank "KTS31NR71A226KA01 x2 tolerance=10" "KTS31NB51A476MA01 tolerance=20" \
      --dc-bias 5V --current "300kHz=4 600kHz=1.2" --format json
  tavik-cli bank "KTS31NR71A226KA01 x2" KTS31NB51A476MA01 KTS188R71H104KA01 --tolerance 10 \
      --dc-bias 4.5..5.5V --ambient -10..65C --frequency 270..330kHz --current 6Arms

)";

static std::string Help()
{
    return examples +
           Wrapped(
               "Each PIECE is a part number, in quotes where it has blanks, how many of it there are, and "
               "the percentage that their capacitance may differ by; the parts hold none. All share the "
               "current by their capacitance and loss resistance at the operating point; currents of "
               "several frequencies heat as the sum of squares. The worst case has one piece at the upper "
               "end of its tolerance and all others at the lower end of theirs. Over ranges of bias, ambient "
               "temperature and frequency every value is the worst of all combinations, with the place "
               "where it occurs. Pieces do not heat each other. A bias that is left out is 0. Where an "
               "inductance of 1 nH, of which the data hold none, would decide, a warning tells so.");
}

static void TellBank(BankOptions options)
{
    if (options.Pieces.empty() || options.Request.Current.empty())
    {
        throw UsageError(options.Pieces.empty() ? "bank wants a part number" : "bank wants --current");
    }
    std::ranges::transform(options.Pieces, std::back_inserter(options.Request.Pieces), PieceOf);
    RefuseInputAsOutput(options.OutputFile, PartFilesOf(PartFolder(options.DataFolder)));
    const auto parts = LoadParts(options.DataFolder);
    const auto bank = BankOf(options.Request, parts, options.Settings);
    Output output(options.OutputFile);
    output.Write(FormatNamed(BankFormats(), options.Format).Write(bank, options.Settings));
    output.Finish();
    for (const std::string& note : BankNotes(bank, options.Settings))
    {
        TellLine("tavik-cli: " + note);
    }
}

void AddBankCommand(CLI::App& app)
{
    const auto options = std::make_shared<BankOptions>();
    auto& command = *app.add_subcommand("bank", "Tells how parts in parallel share a ripple current");
    command.footer(Help());
    command.add_option("pieces", options->Pieces, "\"PART [xN] [tolerance=PERCENT]\"")->type_name("PIECE");
    AddConditionOptions(command, options->Request.Conditions, "Operating point");
    command
        .add_option("--current", options->Request.Current,
                    "Ripple current, for example 4Arms, or \"300kHz=4 600kHz=1.2\"")
        ->type_name("Arms")
        ->group("Operating point");
    command
        .add_option("--tolerance", options->Request.Tolerance, "That of pieces that name none, 10 or -20/+80")
        ->type_name("%")
        ->group("Operating point");
    AddCodeOption(command, options->Request.Code);
    AddNumberingOption(command, options->Settings);
    AddDataOption(command, options->DataFolder);
    AddFormatOption(command, options->Format, {BankFormats().begin(), BankFormats().end()});
    AddOutputOption(command, options->OutputFile);
    command.callback([options] { TellBank(*options); });
}

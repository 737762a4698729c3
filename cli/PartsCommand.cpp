/// `tavik-cli parts`: lists the parts of the range.

#include "cli/Command.h"
#include "cli/Commands.h"
#include "cli/FileArguments.h"
#include "cli/FilterOptions.h"
#include "cli/Output.h"
#include "cli/RequestOptions.h"
#include "requests/Names.h"
#include "requests/PartList.h"
#include "requests/PartOrder.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <charconv>
#include <iostream>

namespace
{
struct PartsOptions
{
    PartFilter Filter;
    CurveSettings Settings;
    CodeView Code = CodeView::Eia;
    std::vector<SortKey> Order;
    std::size_t Limit = MostParts;
    std::string Format;
    std::string DataFolder;
    std::string OutputFile;
};
} // namespace

static constexpr const char* help = R"(Examples:
  tavik-cli parts --chart temperature-rise --capacitance 10uF --rated-voltage 25V
  tavik-cli parts KTS31 --characteristic X7R --format csv

Size and characteristic are looked up in the code in force, and in the other one if they stand nowhere there.
Values may bear a unit; without one a capacitance is in pF. A..B, A.. and ..B are ranges, both ends included.)";

static void ListParts(const PartsOptions& options)
{
    RefuseInputAsOutput(options.OutputFile, PartFilesOf(PartFolder(options.DataFolder)));
    const auto parts = LoadParts(options.DataFolder);
    auto filter = options.Filter;
    filter.Code = options.Code;
    auto found = FilterParts(parts, filter);
    SortParts(found, parts, options.Order, options.Code, options.Settings);
    found.resize(std::min(found.size(), options.Limit));
    Output output(options.OutputFile);
    const auto& format = FormatNamed(PartListFormats(), options.Format);
    output.Write(format.Write(found, options.Code, options.Settings));
    output.Finish();
    if (found.empty())
    {
        std::cerr << "tavik-cli: no part fits\n";
    }
}

/// A whole number.
static std::size_t CountOf(std::string_view text)
{
    std::size_t count = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), count);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size())
    {
        throw UsageError("--limit \"" + std::string(text) + "\" is not a whole number");
    }
    return count;
}

void AddPartsCommand(CLI::App& app)
{
    const auto options = std::make_shared<PartsOptions>();
    auto& command = *app.add_subcommand("parts", "Lists the parts that fit");
    command.footer(help);
    PartFilter& filter = options->Filter;
    AddReadOption(command, {"--chart", "CHART", "Parts with data for a chart type, such as temperature-rise"},
                  [&filter](const std::string& value) { filter.ChartType = ChartTypeOf(value); });
    AddFilterOptions(command, filter);
    AddReadOption(command,
                  {"--sort", "KEY[,KEY...]",
                   "Order by " + ChoiceOf(SortNames()) + "; downwards with a hyphen before the key"},
                  [options](const std::string& value) { options->Order = SortKeysOf(value); });
    AddReadOption(command, {"--limit", "N", "So many parts at most"},
                  [options](const std::string& value) { options->Limit = CountOf(value); });
    AddCodeOption(command, options->Code);
    AddNumberingOption(command, options->Settings);
    AddDataOption(command, options->DataFolder);
    AddFormatOption(command, options->Format, {PartListFormats().begin(), PartListFormats().end()});
    AddOutputOption(command, options->OutputFile);
    command.callback([options] { ListParts(*options); });
}

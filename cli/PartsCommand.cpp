/// `tavik-cli parts`: lists the parts of the range.

#include "cli/Command.h"
#include "cli/Commands.h"
#include "cli/FileArguments.h"
#include "cli/Output.h"
#include "cli/RequestOptions.h"
#include "requests/PartList.h"
#include "requests/RequestError.h"
#include "requests/UnitEntry.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace
{
struct PartsOptions
{
    PartFilter Filter;
    CurveSettings Settings;
    CodeView Code = CodeView::Eia;
    std::string Format;
    std::string DataFolder;
    std::string OutputFile;
};
} // namespace

static constexpr const char* help = R"(Examples:
  tavik-cli parts --chart temperature-rise --capacitance 10uF --rated-voltage 25V
  tavik-cli parts KTS31 --characteristic X7R --format csv

A filter on size and characteristic takes names of either code. Values may bear a unit; without one a
capacitance is in pF.)";

static void ListParts(const PartsOptions& options)
{
    RefuseInputAsOutput(options.OutputFile, PartFilesOf(PartFolder(options.DataFolder)));
    const auto parts = LoadParts(options.DataFolder);
    const auto found = FilterParts(parts, options.Filter);
    Output output(options.OutputFile);
    const auto& format = FormatNamed(PartListFormats(), options.Format);
    output.Write(format.Write(found, options.Code, options.Settings));
    output.Finish();
    if (found.empty())
    {
        std::cerr << "tavik-cli: no part fits\n";
    }
}

/// An option that is read as soon as it is met, so that a wrong one is a wrong command line.
template <class Take>
static void AddFilter(CLI::App& command, const char* name, const char* type, const char* text, Take take)
{
    command
        .add_option_function<std::string>(
            name,
            [take, name](const std::string& value)
            {
                try
                {
                    take(value);
                }
                catch (const RequestError& error)
                {
                    throw UsageError(std::string(name) + ' ' + error.Message());
                }
            },
            text)
        ->type_name(type)
        ->group("Filter");
}

void AddPartsCommand(CLI::App& app)
{
    const auto options = std::make_shared<PartsOptions>();
    auto& command = *app.add_subcommand("parts", "Lists the parts that fit");
    command.footer(help);
    PartFilter& filter = options->Filter;
    command.add_option("text", filter.Text, "Part of a part number, in any form and letter case")
        ->type_name("TEXT");
    AddFilter(command, "--chart", "CHART", "Parts with data for a chart type, such as temperature-rise",
              [&filter](const std::string& value) { filter.ChartType = ChartTypeOf(value); });
    AddFilter(command, "--size", "SIZE", "Size code, such as 1206 or 3216",
              [&filter](const std::string& value) { filter.SizeCode = value; });
    AddFilter(command, "--characteristic", "TCC", "Temperature characteristic, such as X7R or R",
              [&filter](const std::string& value) { filter.Tcc = value; });
    AddFilter(command, "--capacitance", "pF", "Nominal capacitance, such as 4.7uF",
              [&filter](const std::string& value)
              { filter.Capacitance = ValueInUnit(value, Quantity::Capacitance); });
    AddFilter(command, "--rated-voltage", "V", "Rated voltage, such as 25V",
              [&filter](const std::string& value)
              { filter.RatedVoltage = ValueInUnit(value, Quantity::DCVoltage); });
    AddCodeOption(command, options->Code);
    AddNumberingOption(command, options->Settings);
    AddDataOption(command, options->DataFolder);
    AddFormatOption(command, options->Format, {PartListFormats().begin(), PartListFormats().end()});
    AddOutputOption(command, options->OutputFile);
    command.callback([options] { ListParts(*options); });
}

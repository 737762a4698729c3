#include "cli/DataCommands.h"

#include "cli/Command.h"
#include "files/InputFile.h"
#include "files/PartFiles.h"
#include "files/PartLoading.h"
#include "files/WholeFile.h"
#include "partdata/DataReader.h"
#include "partdata/PartTable.h"
#include "partdata/RunTimeError.h"
#include "partfiles/PairBytes.h"
#include "partfiles/PairCheck.h"
#include "partfiles/PairReplacement.h"
#include "partfiles/TablePair.h"
#include "partfiles/TableReader.h"
#include "partfiles/TableWriter.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>
#include <memory>
#include <vector>

namespace fs = std::filesystem;

namespace
{
/// What the user typed.
struct DataOptions
{
    std::string Pair;
    std::string Table;
    std::string Output;
    std::string Format = "text";
};

void PrintWhole(const std::string& text)
{
    std::cout << text << std::flush;
    if (!std::cout)
    {
        throw RunTimeError(RunTimeErrorNumber::DeviceIoError).At("standard output");
    }
}

void Check(const DataOptions& options)
{
    const auto report = CheckPair(options.Pair);
    PrintWhole(options.Format == "json" ? JsonOf(report) : TextOf(report));
    const auto errors = report.Count(Severity::Error);
    if (errors != 0)
    {
        throw Failure(options.Pair + ": " + Counted(errors, "error"));
    }
}

std::vector<PartNames> NamesOfAll(const std::vector<PartRecord>& parts)
{
    std::vector<PartNames> names;
    names.reserve(parts.size());
    for (const auto& part : parts)
    {
        names.push_back(NamesOf(part));
    }
    return names;
}

/// Says what the table cannot give back.
void NoteLosses(const PairPaths& pair, const std::string& indexText, const PartTable& table)
{
    if (IndexText(NamesOfAll(table.PartData), LineEndOf(indexText)) != indexText)
    {
        std::cerr << pair.Index.filename().string()
                  << ": note: not in canonical form; build will write it with every name quoted and one line "
                     "a part\n";
    }
    const auto bytes = InputFile(pair.Data).Size();
    const auto needed = std::uintmax_t{table.PartData.size()} * DataRecordBytes;
    if (bytes > needed)
    {
        std::cerr << pair.Data.filename().string() << ": note: " << bytes - needed
                  << " bytes behind the data of the last part are left out\n";
    }
    if (bytes < needed)
    {
        std::cerr << pair.Data.filename().string() << ": note: the data from record "
                  << bytes / DataRecordBytes + 1 << " on are missing; build will write zeros\n";
    }
}

void Export(const DataOptions& options)
{
    const PairPaths pair = {.Index = IndexFileOf(options.Pair), .Data = DataFileOf(options.Pair)};
    const auto table = ReadPartPair(pair.Index, pair.Data);
    const auto indexText = ReadBytes(pair.Index, MostIndexBytes);
    const auto text = TableText(table.PartData, LineEndOf(indexText));
    if (options.Output.empty())
    {
        PrintWhole(text);
    }
    else
    {
        WriteWholeFile(options.Output, text);
    }
    NoteLosses(pair, indexText, table);
}

/// FOLDER/NAME, or a name with one of the two extensions, as the two files.
PairPaths PairPathsOf(fs::path output)
{
    const auto extension = output.extension();
    if (extension == ".idx" || extension == ".dat")
    {
        output.replace_extension();
    }
    return {.Index = output.string() + ".idx", .Data = output.string() + ".dat"};
}

void Build(const DataOptions& options)
{
    const auto table = ReadTable(ReadBytes(options.Table, MostTableBytes));
    for (const auto& error : table.Errors)
    {
        std::cerr << LineOf(error, options.Table) << '\n';
    }
    if (!table.Errors.empty())
    {
        throw Failure(options.Table + ": " + Counted(table.Errors.size(), "error"));
    }
    ReplacePair(PairPathsOf(options.Output), PairOf(table));
}

CLI::App* AddCommand(CLI::App& data, const std::string& name, const std::string& description,
                     const std::shared_ptr<DataOptions>& options, void (*command)(const DataOptions&))
{
    auto* const added = data.add_subcommand(name, description);
    added->callback([options, command] { command(*options); });
    return added;
}
} // namespace

void AddDataCommands(CLI::App& app)
{
    // The options live as long as the commands that read them.
    const auto options = std::make_shared<DataOptions>();
    constexpr auto PairHelp = "Folder of the part files, or the index file of a pair";

    auto* const data = app.add_subcommand("data", "Check part files, and turn them into a table and back");
    data->require_subcommand(1);

    auto* const check = AddCommand(*data, "check", "Check a pair of part files", options, Check);
    check->add_option("PAIR", options->Pair, PairHelp)->required();
    check->add_option("--format", options->Format, "Form of the findings: text or json")
        ->check(CLI::IsMember({"text", "json"}));

    auto* const exporting =
        AddCommand(*data, "export", "Write a pair of part files as a table (CSV)", options, Export);
    exporting->add_option("PAIR", options->Pair, PairHelp)->required();
    exporting->add_option("--output", options->Output, "File for the table, instead of standard output");

    auto* const build = AddCommand(*data, "build", "Make a pair of part files from a table", options, Build);
    build->add_option("TABLE", options->Table, "Table of parts, as export writes it")->required();
    build->add_option("--output", options->Output, "FOLDER/NAME of the files, without extension")->required();
}

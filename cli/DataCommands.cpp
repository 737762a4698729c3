#include "cli/DataCommands.h"

#include "cli/Command.h"
#include "cli/DataBuild.h"
#include "cli/DataFit.h"
#include "cli/FileArguments.h"
#include "cli/Output.h"
#include "files/PartLoading.h"
#include "partdata/DataReader.h"
#include "partdata/PartTable.h"
#include "partfiles/PairBytes.h"
#include "partfiles/PairCheck.h"
#include "partfiles/TableWriter.h"
#include "terminal/Terminal.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <vector>

namespace fs = std::filesystem;

namespace
{
/// What the user typed.
struct DataOptions
{
    std::string Pair;
    std::string Output;
    std::string Format = "text";
};

void WriteWhole(const std::string& fileName, const std::string& text)
{
    Output output(fileName);
    output.Write(text);
    output.Finish();
}

void Check(const DataOptions& options)
{
    const auto report = CheckPair(options.Pair);
    RefuseInputAsOutput(options.Output, PartFilesOf(options.Pair));
    WriteWhole(options.Output, options.Format == "json" ? JsonOf(report) : TextOf(report));
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

/// A pair as text, with what the text cannot give back.
struct Exported
{
    std::string Table;
    std::vector<std::string> Notes;
};

std::vector<std::string> LossesOf(PairReading& pair, std::string_view indexText, const PartTable& table)
{
    std::vector<std::string> notes;
    if (IndexText(NamesOfAll(table.PartData), LineEndOf(indexText)) != indexText)
    {
        notes.push_back(pair.Index().Name() +
                        ": note: not in canonical form; build will write it with every name quoted and one "
                        "line a part");
    }
    const auto bytes = pair.Data().Size();
    const auto needed = std::uintmax_t{table.PartData.size()} * DataRecordBytes;
    if (bytes > needed)
    {
        notes.push_back(pair.Data().Name() + ": note: " + std::to_string(bytes - needed) +
                        " bytes behind the data of the last part are left out");
    }
    if (bytes < needed)
    {
        notes.push_back(pair.Data().Name() + ": note: the data from record " +
                        std::to_string(bytes / DataRecordBytes + 1) +
                        " on are missing; build will write zeros");
    }
    return notes;
}

Exported ExportedOf(const std::string& name)
{
    Exported exported;
    ReadSettled(SearchFor(fs::path(name)),
                [&](PairReading& pair)
                {
                    // That one of the two is missing is told before anything that is wrong with the other.
                    pair.IndexPath();
                    pair.DataPath();
                    const auto table = ReadPartPair(pair);
                    pair.Index().Rewind();
                    const auto indexText = ReadBytes(pair.Index(), MostIndexBytes);
                    exported = {.Table = TableText(table.PartData, LineEndOf(indexText)),
                                .Notes = LossesOf(pair, indexText, table)};
                });
    return exported;
}

void Export(const DataOptions& options)
{
    RefuseInputAsOutput(options.Output, PartFilesOf(options.Pair));
    const auto exported = ExportedOf(options.Pair);
    WriteWhole(options.Output, exported.Table);
    for (const auto& note : exported.Notes)
    {
        TellLine(note);
    }
}

template <class Options>
CLI::App& AddCommand(CLI::App& data, const std::string& name, const std::string& description,
                     const std::shared_ptr<Options>& options, void (*command)(const Options&))
{
    auto& added = *data.add_subcommand(name, description);
    added.callback([options, command] { command(*options); });
    return added;
}

void AddPair(CLI::App& command, std::string& pair)
{
    TakePair(*command.add_option("PAIR", pair, "Folder of the part files, or the index file of a pair")
                  ->required());
}

void AddCheck(CLI::App& data)
{
    // The options live as long as the commands that read them.
    const auto options = std::make_shared<DataOptions>();
    auto& check = AddCommand(data, "check", "Check a pair of part files", options, Check);
    AddPair(check, options->Pair);
    check.add_option("--format", options->Format, "Form of the findings: text or json")
        ->check(CLI::IsMember({"text", "json"}));
    TakeOutputFile(*check.add_option("--output", options->Output,
                                     "File for the findings (left out, or -: standard output)"));
}

void AddExport(CLI::App& data)
{
    const auto options = std::make_shared<DataOptions>();
    auto& exporting =
        AddCommand(data, "export", "Write a pair of part files as a table (CSV)", options, Export);
    AddPair(exporting, options->Pair);
    TakeOutputFile(*exporting.add_option("--output", options->Output,
                                         "File for the table (left out, or -: standard output)"));
}

void AddBuild(CLI::App& data)
{
    const auto options = std::make_shared<BuildOptions>();
    auto& build = AddCommand(data, "build", "Make a pair of part files from a table", options, BuildPair);
    TakeInputFile(*build
                       .add_option("TABLE", options->Table,
                                   "Table of parts, as export writes it, or - for standard input")
                       ->required());
    TakeOutputPair(
        *build.add_option("--output", options->Output, "FOLDER/NAME of the files, without extension")
             ->required());
    build.add_flag("--force", options->Force, "Build a range without any part, too");
    build.add_flag("--dry-run", options->DryRun, "Tell what would come of it, and write nothing");
}
} // namespace

void AddDataCommands(CLI::App& app)
{
    auto& data = *app.add_subcommand("data", "Check part files, and turn them into a table and back");
    data.require_subcommand(1);
    AddCheck(data);
    AddExport(data);
    AddBuild(data);
    AddFitCommand(data);
    AddMergeCommand(data);
}

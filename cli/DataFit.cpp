#include "cli/DataFit.h"

#include "cli/Command.h"
#include "cli/DataTables.h"
#include "cli/FileArguments.h"
#include "cli/NamedPicture.h"
#include "cli/Output.h"
#include "ownparts/FitJson.h"
#include "ownparts/FitSheet.h"
#include "ownparts/FitText.h"
#include "ownparts/MeasurementReader.h"
#include "ownparts/PartFit.h"
#include "partfiles/TableMerge.h"
#include "requests/CurveRequest.h"
#include "terminal/Terminal.h"

#include <CLI/CLI.hpp>

namespace
{
/// What the user typed.
struct FitOptions
{
    std::string Measurements;
    std::string Like;
    std::string DataFolder;
    std::string Table;
    bool Replace = false;
    std::string Output;
    std::string Picture;
    std::string Format = "text";
};

struct MergeOptions
{
    std::vector<std::string> Tables;
    std::string Output;
};

void RefuseOutputs(const FitOptions& options)
{
    if (options.Output == StandardStream || options.Picture == StandardStream)
    {
        throw UsageError("standard output has the report; name a file for all else");
    }
    if (options.Replace && options.Table.empty())
    {
        throw UsageError("--replace wants --table");
    }
    RefuseStreamTwice({options.Measurements, options.Table});
    const auto lenders = options.Like.empty() ? std::vector<std::filesystem::path>()
                                              : PartFilesOf(PartFolder(options.DataFolder));
    RefuseInputAsOutput(options.Output, lenders);
    RefuseInputAsOutput(options.Output, {options.Measurements});
    if (!options.Picture.empty())
    {
        RequirePictureName(options.Picture);
        RefuseOneOutput(options.Output, options.Picture);
        RefuseInputAsOutput(options.Picture, {options.Measurements, options.Table});
    }
}

/// A file that is put in place when all is done; nothing for one that is not asked for.
std::optional<Output> Written(const std::string& file, const std::function<std::string()>& bytes)
{
    std::optional<Output> output;
    if (!file.empty())
    {
        output.emplace(file).Write(bytes());
    }
    return output;
}

MeasuredPart MeasuredOf(const FitOptions& options, const TableContents& table)
{
    const auto jisSizeOf = [&table](const std::string& eia)
    {
        const auto isOfSize = [&eia](const TablePart& part) { return part.Names[FirstSizeCodeField] == eia; };
        const auto found = std::ranges::find_if(table.Parts, isOfSize);
        return found == table.Parts.end() ? std::string() : found->Names[FirstSizeCodeField + 1];
    };
    auto file = ReadMeasurements(ReadInput(options.Measurements, MostMeasurementBytes), jisSizeOf);
    RefuseFaults(file.Errors, options.Measurements);
    return std::move(file.Part);
}

FittedPart FittedOf(const FitOptions& options, const TableContents& table)
{
    auto measured = MeasuredOf(options, table);
    PartFit fit;
    if (options.Like.empty())
    {
        fit = FitPart(std::move(measured), nullptr);
    }
    else
    {
        const auto parts = LoadParts(options.DataFolder);
        fit = FitPart(std::move(measured), &parts.PartData[FindPart(parts, options.Like, 0)]);
    }
    for (const auto& refusal : fit.Refusals)
    {
        TellLine(ShownName(options.Measurements) + ": " + refusal);
    }
    if (!fit.Refusals.empty())
    {
        throw Failure("");
    }
    return std::move(fit.Fitted);
}

std::string PictureOf(const FittedPart& fitted, const std::string& file)
{
    const auto charts = ChartsOf(fitted);
    return NamedPicture(file, fitted.Row.Names[0], QSizeF(FitSheetWidth(charts.size()), FitSheetHeight),
                        [&](SheetSurface& sheet) { DrawFitSheet(fitted, charts, sheet); });
}

void Fit(const FitOptions& options)
{
    RefuseOutputs(options);
    NamedTable table{ShownName(options.Table), {}};
    if (!options.Table.empty())
    {
        table.Table = TableOf(options.Table);
    }
    const auto fitted = FittedOf(options, table.Table);
    if (const auto refusal = PutIntoTable(table, fitted.Row, options.Replace))
    {
        throw Failure(*refusal);
    }
    auto tableFile = Written(options.Output, [&] { return TextOf(table.Table); });
    auto picture = Written(options.Picture, [&] { return PictureOf(fitted, options.Picture); });
    Output report("");
    report.Write(options.Format == "json" ? JsonOf(fitted) : TextOf(fitted));
    // Whoever could not be told of a fit finds no file of it either.
    report.Finish();
    for (auto* output : {&tableFile, &picture})
    {
        if (*output)
        {
            (*output)->Finish();
        }
    }
}

void Merge(const MergeOptions& options)
{
    RefuseStreamTwice(options.Tables);
    RefuseInputAsOutput(options.Output, {options.Tables.begin(), options.Tables.end()});
    std::vector<NamedTable> tables;
    for (const auto& file : options.Tables)
    {
        tables.push_back({ShownName(file), TableOf(file)});
    }
    const auto merged = MergeTables(tables);
    for (const auto& fault : merged.Faults)
    {
        TellLine(fault);
    }
    if (!merged.Faults.empty())
    {
        throw Failure("");
    }
    Output output(options.Output);
    output.Write(TextOf(merged.Table));
    output.Finish();
}
} // namespace

void AddFitCommand(CLI::App& data)
{
    const auto options = std::make_shared<FitOptions>();
    auto& fit = *data.add_subcommand("fit", "Make a row of a part table from measurements");
    TakeInputFile(*fit.add_option("MEASUREMENTS", options->Measurements,
                                  "What was measured on a part (CSV), or - for standard input")
                       ->required());
    fit.add_option("--like", options->Like, "Part that lends what was not measured")->type_name("PART");
    AddDataOption(fit, options->DataFolder);
    TakeInputFile(*fit.add_option("--table", options->Table, "Table of parts that the row is put into"));
    fit.add_flag("--replace", options->Replace, "Put the row in the place of the part of its number");
    TakeOutputFile(*fit.add_option("--output", options->Output,
                                   "File for the table (left out: nothing but the report)"));
    TakeOutputFile(*fit.add_option("--picture", options->Picture,
                                   "File for the points over the curves: *.png, *.svg or *.pdf"));
    fit.add_option("--format", options->Format, "Form of the report: text or json")
        ->check(CLI::IsMember({"text", "json"}));
    fit.callback([options] { Fit(*options); });
}

void AddMergeCommand(CLI::App& data)
{
    const auto options = std::make_shared<MergeOptions>();
    auto& merge = *data.add_subcommand("merge", "Make one part table of several");
    TakeInputFile(*merge.add_option("TABLES", options->Tables, "Tables of parts")->required());
    TakeOutputFile(*merge.add_option("--output", options->Output, "File for the table (-: standard output)")
                        ->required());
    merge.callback([options] { Merge(*options); });
}

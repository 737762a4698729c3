#include "cli/DataBuild.h"

#include "cli/Command.h"
#include "cli/DataTables.h"
#include "cli/FileArguments.h"
#include "files/PartLoading.h"
#include "partdata/RunTimeError.h"
#include "partfiles/PairCheck.h"
#include "partfiles/PairReplacement.h"
#include "partfiles/TablePair.h"
#include "terminal/Terminal.h"

#include <iostream>

namespace fs = std::filesystem;

namespace
{
/// FOLDER/NAME without the extension that may have been typed.
fs::path NameOfPair(fs::path output)
{
    const auto extension = output.extension();
    return extension == IndexExtension || extension == DataExtension ? output.replace_extension() : output;
}

/// Parts of the pair that stands there; 0 where there is none that can be loaded.
std::size_t PartsIn(const PairPaths& pair)
{
    try
    {
        return ReadPartPair(pair.Index, pair.Data).PartData.size();
    }
    catch (const RunTimeError&)
    {
        return 0;
    }
}

/// Tells that the folder's pair is another one.
void TellEarlierFile(const fs::path& file)
{
    const auto folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
    const auto names = NamesOfPartFiles(folder.string(), file.extension().string());
    const auto own = file.filename().string();
    if (!names.empty() && StandsBefore(names.front(), own))
    {
        TellLine(own + ": note: " + names.front() + " comes first in " + folder.string() +
                 " and is loaded instead");
    }
}

std::string LastLineOf(std::string text)
{
    text.pop_back();
    return text.substr(text.rfind('\n') + 1) + '\n';
}
} // namespace

void BuildPair(const BuildOptions& options)
{
    const auto name = NameOfPair(options.Output);
    const auto target = PairNamed(name);
    RefuseInputAsOutput(target.Index.string(), {options.Table});
    RefuseInputAsOutput(target.Data.string(), {options.Table});
    const auto table = TableOf(options.Table);
    if (table.Parts.empty() && !options.Force)
    {
        throw Failure(options.Table + ": has no parts; --force builds a range without any");
    }
    const auto pair = PairOf(table);
    const auto before = PartsIn(target);
    if (options.DryRun)
    {
        RequirePairReplaceable(name);
    }
    else
    {
        ReplacePair(name, pair);
    }
    TellEarlierFile(target.Index);
    TellEarlierFile(target.Data);
    std::cerr << Counted(before, "part") << ", " << table.Parts.size() << " after it\n"
              << LastLineOf(TextOf(CheckPair({.Name = target.Index.filename().string(), .Bytes = pair.Index},
                                             {.Name = target.Data.filename().string(), .Bytes = pair.Data})));
}

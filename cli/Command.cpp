#include "cli/Command.h"

#include "cli/FileArguments.h"
#include "files/PartFolder.h"
#include "files/PartLoading.h"
#include "partdata/RunTimeError.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>

#include <filesystem>

std::string ProgramFolder()
{
    const auto folder = [] { return QCoreApplication::applicationDirPath().toStdString(); };
    if (QCoreApplication::instance() != nullptr)
    {
        return folder();
    }
    int argc = 1;
    char name[] = "tavik-cli";
    char* argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);
    return folder();
}

std::string PartFolder(const std::string& given)
{
    const auto named = NamedPartFolder(given);
    return named ? *named : ProgramFolder();
}

PartTable LoadParts(const std::string& givenFolder)
{
    const auto folder = PartFolder(givenFolder);
    std::error_code ignored;
    if (!std::filesystem::is_directory(folder, ignored))
    {
        throw RunTimeError(RunTimeErrorNumber::PathNotFound).At(folder);
    }
    try
    {
        return LoadPartData(folder);
    }
    catch (const RunTimeError& error)
    {
        // Nothing of the kind in the folder: name the folder too, which the user has chosen.
        const auto& where = error.Where();
        throw where.Folder.empty() ? error
                                   : error.At((std::filesystem::path(where.Folder) / where.File).string());
    }
}

void AddDataOption(CLI::App& command, std::string& folder)
{
    TakePair(*command
                  .add_option("--data", folder,
                              "Folder of the part files *.idx and *.dat (left out: the one that TAVIK_DATA "
                              "names, else the program's own)")
                  ->type_name("FOLDER"));
}

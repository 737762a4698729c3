#include "cli/Command.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>

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
    return given.empty() ? ProgramFolder() : given;
}

void AddDataOption(CLI::App& command, std::string& folder)
{
    command
        .add_option("--data", folder,
                    "Folder of the part files *.idx and *.dat (left out: the program's own)")
        ->type_name("FOLDER");
}

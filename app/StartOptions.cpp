#include "app/StartOptions.h"

#include "partdata/OneLine.h"

static constexpr std::string_view Help = R"(Characteristics of multilayer chip capacitors.
Usage: tavik [OPTIONS]

Options:
  --data FOLDER   Folder of the part files *.idx and *.dat (left out: the one that TAVIK_DATA names, else the
                  program's own)
  -h, --help      Shows this help and ends
  --version       Shows the version and ends

Options of the window toolkit, such as -style and -platform, are taken too.
tavik-cli(1) does the same work without a window.
)";

Arguments ArgumentsOf(int argc, const char* const* argv)
{
    const Arguments all(argv, static_cast<std::size_t>(argc));
    return all.empty() ? all : all.subspan(1);
}

std::optional<std::string> TextAskedFor(Arguments arguments, std::string_view version)
{
    for (const std::string_view argument : arguments)
    {
        if (argument == "--help" || argument == "-h")
        {
            return std::string(Help);
        }
        if (argument == "--version")
        {
            return "tavik " + std::string(version) + '\n';
        }
    }
    return std::nullopt;
}

static void TakeDataFolder(StartOptions& options, std::string_view folder)
{
    if (folder.empty())
    {
        throw WrongCommandLine("--data wants the name of a folder");
    }
    if (!options.DataFolder.empty())
    {
        throw WrongCommandLine("--data stands twice");
    }
    options.DataFolder = folder;
}

StartOptions ReadStartOptions(Arguments arguments)
{
    static constexpr std::string_view data = "--data";
    static constexpr std::string_view dataIs = "--data=";
    StartOptions options;
    for (std::size_t i = 0; i < arguments.size(); ++i)
    {
        const std::string_view argument = arguments[i];
        if (argument == data)
        {
            ++i;
            TakeDataFolder(options, i < arguments.size() ? arguments[i] : "");
        }
        else if (argument.starts_with(dataIs))
        {
            TakeDataFolder(options, argument.substr(dataIs.size()));
        }
        else
        {
            throw WrongCommandLine("unexpected argument \"" + OneLine(argument) + "\" (see tavik --help)");
        }
    }
    return options;
}

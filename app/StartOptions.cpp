#include "app/StartOptions.h"

#include "partdata/OneLine.h"

static constexpr std::string_view Help = R"(Characteristics of multilayer chip capacitors.
Usage: tavik [OPTIONS]

Options:
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

void CheckArguments(Arguments arguments)
{
    if (!arguments.empty())
    {
        throw WrongCommandLine("unexpected argument \"" + OneLine(arguments.front()) +
                               "\" (see tavik --help)");
    }
}

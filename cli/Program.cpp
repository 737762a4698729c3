#include "cli/Program.h"

#include "cli/Command.h"
#include "cli/Commands.h"
#include "cli/RequestWords.h"
#include "partdata/OneLine.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>
#include <new>
#include <string>

static constexpr const char* noOutput = "standard output: cannot be written";

/// One line on standard error, whatever the message holds; none for an empty one.
static int End(ExitStatus status, std::string message)
{
    std::erase(message, '\r');
    std::ranges::replace(message, '\n', ' ');
    if (!message.empty())
    {
        std::cerr << "tavik-cli: " << WithoutControls(message) << '\n';
    }
    return static_cast<int>(status);
}

/// Help and version on standard output, anything else as a usage error.
static int EndParsing(const CLI::App& app, const CLI::ParseError& error)
{
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success))
    {
        app.exit(error);
        return std::cout.flush() ? 0 : End(ExitStatus::Failed, noOutput);
    }
    return End(ExitStatus::Usage, error.what() + std::string(" (see tavik-cli --help)"));
}

int RunProgram(int argc, const char* const* argv)
{
    CLI::App app("Characteristics of multilayer chip capacitors on the command line.", "tavik-cli");
    app.set_version_flag("--version", "tavik-cli " TAVIK_VERSION);
    app.require_subcommand(0, 1);
    app.get_formatter()->column_width(34);
    for (const auto add : AllCommands)
    {
        add(app);
    }
    try
    {
        app.parse(argc, argv);
        if (app.get_subcommands().empty())
        {
            throw UsageError("a command is missing (see tavik-cli --help)");
        }
        if (!std::cout.flush())
        {
            throw Failure(noOutput);
        }
    }
    catch (const CLI::ParseError& error)
    {
        return EndParsing(app, error);
    }
    catch (const CommandError& error)
    {
        return End(error.Status(), error.what());
    }
    catch (const RequestError& error)
    {
        return End(StatusOf(error), WordsOf(error));
    }
    catch (const std::bad_alloc&)
    {
        return End(ExitStatus::Failed, "out of memory");
    }
    catch (const std::exception& error)
    {
        return End(ExitStatus::Failed, error.what());
    }
    return static_cast<int>(ExitStatus::Success);
}

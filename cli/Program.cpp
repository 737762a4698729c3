#include "cli/Program.h"

#include "cli/Command.h"
#include "cli/Commands.h"
#include "partdata/OneLine.h"
#include "requests/Names.h"
#include "requests/RequestWords.h"
#include "terminal/Terminal.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>
#include <new>
#include <optional>
#include <span>
#include <string>
#include <vector>

static constexpr const char* noOutput = "standard output: cannot be written";

/// One line on standard error, whatever the message holds; none for an empty one.
static int End(ExitStatus status, std::string message)
{
    std::erase(message, '\r');
    std::ranges::replace(message, '\n', ' ');
    if (!message.empty())
    {
        TellLine("tavik-cli: " + message);
    }
    return static_cast<int>(status);
}

/// The command that was reached.
static const CLI::App* LastCommand(const CLI::App* app)
{
    const auto reached = app->get_subcommands();
    return reached.empty() ? app : LastCommand(reached.front());
}

/// What may follow a command: the names of its commands and options.
static std::vector<std::string> WordsAfter(const CLI::App& command)
{
    std::vector<std::string> words;
    for (const CLI::App* below : command.get_subcommands([](const CLI::App*) { return true; }))
    {
        words.push_back(below->get_name());
    }
    for (const CLI::Option* option : command.get_options())
    {
        for (const std::string& name : option->get_lnames())
        {
            words.push_back("--" + name);
        }
    }
    return words;
}

/// What to type instead of arguments.
static std::string AdviceOf(const std::string& meant, const std::vector<std::string>& arguments)
{
    const bool isMisplaced =
        std::ranges::any_of(arguments, [&](const auto& argument)
                            { return argument == meant || argument.starts_with(meant + '='); });
    return isMisplaced ? "; " + meant + " stands behind the command that takes it"
                       : "; did you mean \"" + meant + "\"?";
}

/// Arguments that no command takes, as they were typed, and what the first that is like a known word meant.
static std::string Unexpected(const CLI::App& app)
{
    const auto arguments = app.remaining(true);
    const auto known = WordsAfter(*LastCommand(&app));
    std::optional<std::string> meant;
    for (const std::string& argument : arguments)
    {
        meant = meant ? meant : NameMeantBy(argument.substr(0, argument.find('=')), known);
    }
    return (arguments.size() == 1 ? "The following argument was not expected: "
                                  : "The following arguments were not expected: ") +
           ListOf(arguments, " ") + (meant ? AdviceOf(*meant, arguments) : "");
}

/// Help and version on standard output, anything else as a usage error.
static int EndParsing(const CLI::App& app, const CLI::ParseError& error)
{
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success))
    {
        app.exit(error);
        return std::cout.flush() ? 0 : End(ExitStatus::Failed, noOutput);
    }
    const auto code = static_cast<CLI::ExitCodes>(error.get_exit_code());
    // A command is missing also where it is mistyped.
    const bool isUnexpected = code == CLI::ExitCodes::ExtrasError ||
                              (code == CLI::ExitCodes::RequiredError && !app.remaining(true).empty());
    const auto message = isUnexpected ? Unexpected(app) : error.what();
    return End(ExitStatus::Usage, message + " (see tavik-cli --help)");
}

/// Lets every command tell the version.
static void AddVersion(CLI::App& command)
{
    command.set_version_flag("--version", "tavik-cli " TAVIK_VERSION);
    for (CLI::App* below : command.get_subcommands([](const CLI::App*) { return true; }))
    {
        AddVersion(*below);
    }
}

/// Throws UsageError for a word that is none of the commands.
static void CheckCommands(const CLI::App& app, std::span<const std::string> words)
{
    if (words.empty() || words.front().starts_with('-'))
    {
        return;
    }
    const auto named =
        app.get_subcommands([&](const CLI::App* below) { return below->get_name() == words.front(); });
    if (named.empty())
    {
        const auto meant = NameMeantBy(words.front(), WordsAfter(app));
        throw UsageError("there is no command \"" + words.front() + '"' +
                         (meant ? "; did you mean \"" + *meant + "\"?" : "") + " (see tavik-cli --help)");
    }
    CheckCommands(*named.front(), words.subspan(1));
}

/// What is typed, the last word first; "help curve" is another way to say "curve --help".
static std::vector<std::string> ArgumentsOf(const CLI::App& app, int argc, const char* const* argv)
{
    std::vector<std::string> arguments(argv + 1, argv + argc);
    if (!arguments.empty() && arguments.front() == "help")
    {
        arguments.erase(arguments.begin());
        CheckCommands(app, arguments);
        arguments.emplace_back("--help");
    }
    std::ranges::reverse(arguments);
    return arguments;
}

int RunProgram(int argc, const char* const* argv)
{
    CLI::App app("Characteristics of multilayer chip capacitors on the command line.", "tavik-cli");
    app.require_subcommand(0, 1);
    app.get_formatter()->column_width(34);
    for (const auto add : AllCommands)
    {
        add(app);
    }
    AddVersion(app);
    app.footer("tavik-cli help COMMAND tells more of a command.");
    try
    {
        app.parse(ArgumentsOf(app, argc, argv));
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
        // A request that makes no sense is a wrong command line.
        return End(IsMistaken(error.Kind()) ? ExitStatus::Usage : ExitStatus::Failed, WordsOf(error));
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

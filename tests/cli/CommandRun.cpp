#include "tests/cli/CommandRun.h"

#include "cli/DataCommands.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <exception>
#include <iostream>
#include <sstream>

namespace
{
/// Runs with the given standard output; what is written there is for the caller to read.
CommandRun RunInto(std::streambuf& standardOutput, std::vector<std::string> arguments)
{
    CLI::App app;
    AddDataCommands(app);
    arguments.insert(arguments.begin(), "data");
    std::ranges::reverse(arguments);

    const std::ostringstream notes;
    auto* const oldOutput = std::cout.rdbuf(&standardOutput);
    auto* const oldNotes = std::cerr.rdbuf(notes.rdbuf());
    CommandRun run;
    try
    {
        app.parse(arguments);
    }
    catch (const std::exception& error)
    {
        run.Failure = error.what();
        run.HasFailed = true;
    }
    std::cout.rdbuf(oldOutput);
    std::cerr.rdbuf(oldNotes);
    run.Notes = notes.str();
    return run;
}

/// Takes no character, as a full disk does.
class FullBuffer : public std::streambuf
{
};
} // namespace

CommandRun RunData(std::vector<std::string> arguments)
{
    std::stringbuf output;
    auto run = RunInto(output, std::move(arguments));
    run.Output = output.str();
    return run;
}

CommandRun RunDataIntoFullOutput(std::vector<std::string> arguments)
{
    FullBuffer output;
    return RunInto(output, std::move(arguments));
}

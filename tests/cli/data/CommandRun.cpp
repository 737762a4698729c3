#include "tests/cli/data/CommandRun.h"

#include "cli/data/DataCommands.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <exception>
#include <iostream>
#include <sstream>

CommandRun RunData(std::vector<std::string> arguments)
{
    CLI::App app;
    AddDataCommands(app);
    arguments.insert(arguments.begin(), "data");
    std::ranges::reverse(arguments);

    const std::ostringstream output;
    const std::ostringstream notes;
    auto* const oldOutput = std::cout.rdbuf(output.rdbuf());
    auto* const oldNotes = std::cerr.rdbuf(notes.rdbuf());
    CommandRun run;
    try
    {
        app.parse(arguments);
    }
    catch (const std::exception& error)
    {
        run.Failure = error.what();
    }
    std::cout.rdbuf(oldOutput);
    std::cerr.rdbuf(oldNotes);
    run.Output = output.str();
    run.Notes = notes.str();
    return run;
}

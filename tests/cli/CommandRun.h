#pragma once

/// Runs a data command as the program does, and keeps what it writes.

#include <string>
#include <vector>

struct CommandRun
{
    /// Standard output.
    std::string Output;
    /// Standard error.
    std::string Notes;
    /// Message of the exception that ended the command; empty when it went well, or when all was told before.
    std::string Failure;
    bool HasFailed = false;
};

/// Runs "data" with the arguments.
CommandRun RunData(std::vector<std::string> arguments);

/// As `RunData`, with a standard output that takes nothing, as a full disk.
CommandRun RunDataIntoFullOutput(std::vector<std::string> arguments);

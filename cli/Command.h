#pragma once

/// What the commands of the command line share: how they end, and where their parts come from.

#include "partdata/PartTable.h"

#include <stdexcept>
#include <string>

namespace CLI
{
class App;
}

/// Exit statuses of the program.
enum class ExitStatus
{
    Success = 0,
    /// The command was understood but could not be done: an unknown part, a refused condition, a broken or
    /// unwritable file.
    Failed = 1,
    /// The command line is wrong: an unknown option, a missing value, a unit that does not fit.
    Usage = 2,
};

/// Ends a command with one line on standard error. Throw it from a command's callback; line breaks in the
/// message become blanks. Without a message nothing is said: the command has told all that is wrong.
class CommandError : public std::runtime_error
{
public:
    CommandError(ExitStatus exitStatus, const std::string& message)
        : std::runtime_error(message)
        , status(exitStatus)
    {
    }
    ExitStatus Status() const { return status; }

private:
    ExitStatus status;
};

/// A command line that makes no sense; exit status 2.
class UsageError : public CommandError
{
public:
    explicit UsageError(const std::string& message)
        : CommandError(ExitStatus::Usage, message)
    {
    }
};

/// A sensible command that cannot be done; exit status 1.
class Failure : public CommandError
{
public:
    explicit Failure(const std::string& message)
        : CommandError(ExitStatus::Failed, message)
    {
    }
};

/// The folder of the program itself, links resolved.
std::string ProgramFolder();

/// The folder that holds the pair of part files: the one that `NamedPartFolder` makes of the given one, else
/// the program's own.
std::string PartFolder(const std::string& given);

/// The parts of the folder that `PartFolder` gives. Throws RunTimeError with file or folder.
PartTable LoadParts(const std::string& givenFolder);

/// Adds `--data FOLDER` to a command; the text is what `PartFolder` wants.
void AddDataOption(CLI::App& command, std::string& folder);

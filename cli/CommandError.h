#pragma once

/// How commands end: exit statuses, and the errors that lead to them.

#include <stdexcept>
#include <string>

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

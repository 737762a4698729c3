#pragma once

/// The command line of the desktop program.

#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

/// What follows the program's own name, as `main` is given it.
using Arguments = std::span<const char* const>;

/// The arguments behind the program's name, if there is one.
Arguments ArgumentsOf(int argc, const char* const* argv);

/// A command line that makes no sense, in one line.
class WrongCommandLine : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The help or the version, where `--help`, `-h` or `--version` asks for it, to be written to standard output
/// instead of starting; it needs no display.
std::optional<std::string> TextAskedFor(Arguments arguments, std::string_view version);

/// What the options of the program ask for.
struct StartOptions
{
    /// The folder of the part files, as it was typed; empty where it is left out.
    std::string DataFolder;
};

/// Reads the options of the program; hand over what the window toolkit has left of the arguments.
/// Throws WrongCommandLine.
StartOptions ReadStartOptions(Arguments arguments);

#pragma once

/// A terminal for programs that tell it from a file.

#include <string>

/// A terminal without a screen, and what is written to it.
class PseudoTerminal
{
public:
    /// Throws std::system_error where the system has none left.
    PseudoTerminal();
    ~PseudoTerminal();
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    /// The handle that a program writes to, and the name that it opens.
    int Line() const { return line; }
    std::string Name() const;

    /// What has been written since the last call; it waits a twentieth of a second for more.
    std::string Shown() const;

private:
    int screen;
    int line = -1;
};

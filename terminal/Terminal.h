#pragma once

/// Whether people or programs are at the other end of a stream, and what people are shown.

#include <string>
#include <string_view>

enum class Stream
{
    Output = 1,
    Error = 2,
};

/// True when the stream is shown on a terminal.
bool IsTerminal(Stream stream);

/// True when a file is a terminal, such as /dev/tty.
bool IsTerminalNamed(const std::string& fileName);

/// A text as a terminal shows it without obeying it: whatever is no line end and no character of UTF-8 that
/// can be seen is written as "\x1B".
std::string TextForTerminal(std::string_view text);

/// Writes to standard output, byte by byte as it is, and to a terminal as `TextForTerminal` has it. The state
/// of `std::cout` tells whether that went well.
void WriteToStandardOutput(std::string_view text);

/// Writes one line to standard error, with nothing in it that a terminal would obey or that ends the line.
void TellLine(std::string_view line);

#pragma once

/// Whether people or programs are at the other end of a stream.

enum class Stream
{
    Output = 1,
    Error = 2,
};

/// True when the stream is shown on a terminal.
bool IsTerminal(Stream stream);

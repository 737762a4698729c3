#include "terminal/Terminal.h"

#include "partdata/OneLine.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

#ifdef _WIN32
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

bool IsTerminal(Stream stream)
{
#ifdef _WIN32
    return _isatty(static_cast<int>(stream)) != 0;
#else
    return isatty(static_cast<int>(stream)) != 0;
#endif
}

bool IsTerminalNamed([[maybe_unused]] const std::string& fileName)
{
#ifdef _WIN32
    return false;
#else
    std::error_code fault;
    // A pipe is not even opened: its reader would take the closing for the end.
    if (!std::filesystem::is_character_file(fileName, fault))
    {
        return false;
    }
    const int handle = open(fileName.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    const bool isTerminal = handle >= 0 && isatty(handle) != 0;
    if (handle >= 0)
    {
        close(handle);
    }
    return isTerminal;
#endif
}

/// Takes a line off a text, without its end.
static std::string_view TakeLine(std::string_view& text, std::string_view& lineEnd)
{
    const auto length = std::min(text.find('\n'), text.size());
    const bool hasReturn = length > 0 && length < text.size() && text[length - 1] == '\r';
    const auto line = text.substr(0, hasReturn ? length - 1 : length);
    text.remove_prefix(line.size());
    lineEnd = text.substr(0, hasReturn ? 2 : 1);
    text.remove_prefix(lineEnd.size());
    return line;
}

std::string TextForTerminal(std::string_view text)
{
    std::string shown;
    while (!text.empty())
    {
        std::string_view lineEnd;
        shown += WithoutControls(TakeLine(text, lineEnd));
        shown += lineEnd;
    }
    return shown;
}

void WriteToStandardOutput(std::string_view text)
{
    if (IsTerminal(Stream::Output))
    {
        std::cout << TextForTerminal(text);
        return;
    }
    std::cout.write(text.data(), static_cast<std::streamsize>(text.size()));
}

void TellLine(std::string_view line)
{
    std::cerr << WithoutControls(line) << '\n';
}

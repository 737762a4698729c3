#include "cli/Output.h"

#include "cli/Command.h"
#include "partdata/RunTimeError.h"
#include "terminal/Terminal.h"

#include <cerrno>
#include <iostream>

Output::Output(const std::string& fileName)
    : name(fileName)
{
    if (fileName.empty() || fileName == "-")
    {
        return;
    }
    if (!IsSpecialFile(fileName))
    {
        file = std::make_unique<WholeFile>(fileName);
        return;
    }
    special.emplace();
    isTerminal = IsTerminalNamed(fileName);
    // A reader is to get each piece as it comes, and an error is to be told at the piece that it meets.
    special->rdbuf()->pubsetbuf(nullptr, 0);
    special->open(fileName, std::ios::binary);
    if (!special->is_open())
    {
        throw Failure(fileName + ": cannot be opened");
    }
}

/// Throws where the stream has failed since `errno` was 0.
static void Check(const std::ostream& stream, const std::string& name)
{
    if (!stream && errno == ENOSPC)
    {
        throw RunTimeError(RunTimeErrorNumber::DiskFull).At(name);
    }
    if (!stream)
    {
        throw Failure(name + ": cannot be written");
    }
}

static void CheckStandardOutput()
{
    Check(std::cout, "standard output");
}

void Output::Write(std::string_view text)
{
    if (file)
    {
        file->Write(text);
        return;
    }
    errno = 0;
    if (special)
    {
        *special << (isTerminal ? TextForTerminal(text) : std::string(text));
        Check(*special, name);
        return;
    }
    WriteToStandardOutput(text);
    CheckStandardOutput();
}

void Output::Flush()
{
    if (!file && !special)
    {
        errno = 0;
        std::cout.flush();
        CheckStandardOutput();
    }
}

void Output::Finish()
{
    if (file)
    {
        file->Commit();
        return;
    }
    Flush();
}

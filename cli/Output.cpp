#include "cli/Output.h"

#include "cli/Command.h"
#include "cli/Terminal.h"
#include "partdata/RunTimeError.h"

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
    // A reader is to get each piece as it comes, and an error is to be told at the piece that it meets.
    special->rdbuf()->pubsetbuf(nullptr, 0);
    special->open(fileName, std::ios::binary);
    if (!special->is_open())
    {
        throw Failure(fileName + ": cannot be opened");
    }
}

static void CheckStandardOutput()
{
    if (!std::cout && errno == ENOSPC)
    {
        throw RunTimeError(RunTimeErrorNumber::DiskFull).At("standard output");
    }
    if (!std::cout)
    {
        throw Failure("standard output: cannot be written");
    }
}

void Output::Write(std::string_view text)
{
    if (file)
    {
        file->Write(text);
        return;
    }
    if (special)
    {
        special->write(text.data(), static_cast<std::streamsize>(text.size()));
        if (!*special)
        {
            throw Failure(name + ": cannot be written");
        }
        return;
    }
    errno = 0;
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

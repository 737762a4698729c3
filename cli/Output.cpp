#include "cli/Output.h"

#include "cli/Command.h"

#include <iostream>

Output::Output(const std::string& fileName)
{
    if (!fileName.empty() && fileName != "-")
    {
        file = std::make_unique<WholeFile>(QString::fromLocal8Bit(fileName.data()));
    }
}

static void CheckStandardOutput()
{
    if (!std::cout)
    {
        throw Failure("standard output: cannot be written");
    }
}

void Output::Write(std::string_view text)
{
    if (file)
    {
        file->Write(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
        return;
    }
    std::cout.write(text.data(), static_cast<std::streamsize>(text.size()));
    CheckStandardOutput();
}

void Output::Flush()
{
    if (!file)
    {
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

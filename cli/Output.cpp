#include "cli/Output.h"

#include "cli/Command.h"

#include <iostream>

Output::Output(const std::string& fileName)
{
    if (fileName.empty() || fileName == "-")
    {
        return;
    }
    const auto name = QString::fromLocal8Bit(fileName.data());
    if (!IsSpecialFile(name))
    {
        file = std::make_unique<WholeFile>(name);
        return;
    }
    special = std::make_unique<QFile>(name);
    if (!special->open(QIODevice::WriteOnly | QIODevice::Unbuffered))
    {
        throw Failure(fileName + ": cannot be opened");
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
    if (special)
    {
        const auto size = static_cast<qint64>(text.size());
        if (special->write(text.data(), size) != size)
        {
            throw Failure(special->fileName().toStdString() + ": cannot be written");
        }
        return;
    }
    std::cout.write(text.data(), static_cast<std::streamsize>(text.size()));
    CheckStandardOutput();
}

void Output::Flush()
{
    if (!file && !special)
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

#include "cli/DataTables.h"

#include "cli/CommandError.h"
#include "cli/FileArguments.h"
#include "files/InputFile.h"
#include "partdata/RunTimeError.h"
#include "terminal/Terminal.h"

#include <iostream>

static std::string ReadStandardInput(std::uintmax_t most)
{
    std::string text;
    std::string piece(std::size_t{64} * 1024, '\0');
    while (std::cin.read(piece.data(), static_cast<std::streamsize>(piece.size())) || std::cin.gcount() > 0)
    {
        text.append(piece, 0, static_cast<std::size_t>(std::cin.gcount()));
        if (text.size() > most)
        {
            throw RunTimeError(RunTimeErrorNumber::Overflow).At("standard input");
        }
    }
    if (std::cin.bad())
    {
        throw Failure("standard input: cannot be read");
    }
    return text;
}

std::string ShownName(const std::string& file)
{
    return file == StandardStream ? "standard input" : file;
}

std::string ReadInput(const std::string& file, std::uintmax_t most)
{
    return file == StandardStream ? ReadStandardInput(most) : ReadBytes(file, most);
}

void RefuseFaults(const std::vector<TableError>& errors, const std::string& file)
{
    for (const auto& error : errors)
    {
        TellLine(LineOf(error, ShownName(file)));
    }
    if (!errors.empty())
    {
        throw Failure("");
    }
}

TableContents TableOf(const std::string& file)
{
    auto table = ReadTable(ReadInput(file, MostTableBytes));
    RefuseFaults(table.Errors, file);
    return table;
}

#include "cli/DataTables.h"

#include "cli/CommandError.h"
#include "cli/FileArguments.h"
#include "terminal/Terminal.h"

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

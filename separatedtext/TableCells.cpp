#include "separatedtext/TableCells.h"

#include "separatedtext/Encoding.h"

#include <algorithm>
#include <array>

TableCells::TableCells(std::string_view tableText, char cellSeparator)
    : text(WithoutMark(tableText))
    , separator(cellSeparator)
{
}

bool TableCells::Read(TableRow& row)
{
    while (!text.empty() && AtRowEnd())
    {
        SkipLineEnd();
    }
    row = {.Line = line, .Cells = {}, .Fault = {}};
    if (text.empty())
    {
        return false;
    }
    for (bool more = true; more;)
    {
        const bool quoted = text.starts_with('"');
        row.Cells.push_back(quoted ? ReadQuoted(row.Fault) : ReadPlain(row.Fault));
        more = row.Fault.empty() && text.starts_with(separator);
        if (more)
        {
            text.remove_prefix(1);
        }
    }
    text.remove_prefix(std::min(text.find_first_of("\r\n"), text.size()));
    SkipLineEnd();
    return true;
}

std::string TableCells::ReadQuoted(std::string& fault)
{
    std::string cell;
    text.remove_prefix(1);
    while (!text.empty())
    {
        if (text.starts_with("\"\""))
        {
            cell += '"';
            text.remove_prefix(2);
        }
        else if (text.front() == '"')
        {
            text.remove_prefix(1);
            if (!AtRowEnd() && text.front() != separator)
            {
                fault = "text behind the closing quote";
            }
            return cell;
        }
        else if (AtRowEnd())
        {
            const auto before = text;
            SkipLineEnd();
            cell += before.substr(0, before.size() - text.size());
        }
        else
        {
            cell += text.front();
            text.remove_prefix(1);
        }
    }
    fault = "no closing quote";
    return cell;
}

std::string TableCells::ReadPlain(std::string& fault)
{
    const std::array ends = {separator, '\r', '\n'};
    const auto size = std::min(text.find_first_of({ends.data(), ends.size()}), text.size());
    const std::string cell(text.substr(0, size));
    text.remove_prefix(size);
    if (cell.find('"') != std::string::npos)
    {
        fault = "a quote within a cell without quotes";
    }
    return cell;
}

void TableCells::SkipLineEnd()
{
    if (!text.empty())
    {
        text.remove_prefix(text.starts_with("\r\n") ? 2 : 1);
        ++line;
    }
}

#include "requests/ListText.h"

#include "partdata/OneLine.h"

#include <algorithm>

/// Characters of a UTF-8 text.
static std::size_t WidthOf(const std::string& text)
{
    return static_cast<std::size_t>(std::ranges::count_if(text, [](char c) { return (c & 0xC0) != 0x80; }));
}

static std::vector<std::size_t> WidthsOf(const std::vector<ListRow>& rows, std::size_t columns)
{
    std::vector<std::size_t> widths(columns);
    for (const ListRow& row : rows)
    {
        for (std::size_t i = 0; i < columns; ++i)
        {
            widths[i] = std::max(widths[i], WidthOf(row[i]));
        }
    }
    return widths;
}

std::string AlignedTable(std::vector<ListRow> rows, const std::vector<bool>& areNumbers)
{
    constexpr std::size_t gap = 2;
    for (ListRow& row : rows)
    {
        std::ranges::transform(row, row.begin(), WithoutControls);
    }
    const auto columns = areNumbers.size();
    const auto widths = WidthsOf(rows, columns);
    std::string text;
    for (const ListRow& row : rows)
    {
        for (std::size_t i = 0; i < columns; ++i)
        {
            const bool isLast = i + 1 == columns;
            const std::string padding(widths[i] - WidthOf(row[i]), ' ');
            text += areNumbers[i] ? padding + row[i] : row[i] + (isLast ? "" : padding);
            text.append(isLast ? 0 : gap, ' ');
        }
        text += '\n';
    }
    return text;
}

/// A field of CSV, in quotes where it needs them.
static std::string FieldOf(const std::string& text)
{
    if (text.find_first_of("\",\r\n") == std::string::npos)
    {
        return text;
    }
    std::string quoted = "\"";
    for (const char c : text)
    {
        quoted.append(c == '"' ? 2 : 1, c);
    }
    return quoted + '"';
}

std::string CsvOf(const std::vector<ListRow>& rows)
{
    std::string text;
    for (const ListRow& row : rows)
    {
        for (std::size_t i = 0; i < row.size(); ++i)
        {
            text += (i == 0 ? "" : ",") + FieldOf(row[i]);
        }
        text += '\n';
    }
    return text;
}

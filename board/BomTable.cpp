#include "board/BomTable.h"

#include "partdata/OneLine.h"
#include "separatedtext/Encoding.h"
#include "separatedtext/LineCells.h"
#include "separatedtext/Separator.h"

#include <algorithm>

namespace
{
std::string Trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t\r\n");
    return first == std::string_view::npos
               ? std::string()
               : std::string(text.substr(first, text.find_last_not_of(" \t\r\n") + 1 - first));
}

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Every comma between digits as a point, since a range has two of them.
std::string WithDecimalPoints(std::string text)
{
    for (std::size_t i = 1; i + 1 < text.size(); ++i)
    {
        if (text[i] == ',' && IsDigit(text[i - 1]) && IsDigit(text[i + 1]))
        {
            text[i] = '.';
        }
    }
    return text;
}

/// A bare number with the unit of its heading: behind the whole of "10.8..13.2", behind the middle of
/// "12±5%".
std::string WithUnit(std::string text, std::string_view unit)
{
    const auto spread = std::min(text.find("\u00B1"), text.find("+-"));
    const auto place = text.substr(0, spread).find_last_not_of(' ');
    const bool isBare = !unit.empty() && place != std::string::npos && IsDigit(text[place]);
    return isBare ? text.insert(place + 1, unit) : text;
}

/// Reads one table.
class Reading
{
public:
    Reading(BomTable& target, std::span<const ChosenColumn> chosenColumns)
        : table(target)
        , chosen(chosenColumns)
    {
    }

    void Read(std::string_view text)
    {
        TextLines lines(text);
        std::string_view line;
        while (lines.Read(line) && lines.Line() <= MostLinesToHeading)
        {
            const auto start = static_cast<std::size_t>(line.data() - text.data());
            if (!line.empty() && TakeHeading(text.substr(start), line))
            {
                TakeColumns(lines.Line());
                ReadRows(text.substr(start), lines.Line());
                return;
            }
            TakeDefault(line, lines.Line());
        }
        table.Faults.push_back({0, table.Kind == BomTableKind::Bill
                                       ? "there is no heading with a part column and a reference, net or "
                                         "bias column among the first 50 lines"
                                       : "there is no heading with a reference or net column among the "
                                         "first 50 lines"});
    }

private:
    std::optional<BomField> FieldOf(const std::string& heading) const
    {
        const auto said = std::ranges::find_if(chosen, [&](const ChosenColumn& column)
                                               { return Trimmed(column.Heading) == Trimmed(heading); });
        return said != chosen.end() ? std::optional(said->Field) : FieldOfHeading(heading);
    }

    bool TakeHeading(std::string_view rest, std::string_view line)
    {
        const char separator = SeparatorOf(line);
        table.Separator = separator == ' ' ? ',' : separator;
        TableRow row;
        if (!TableCells(rest, table.Separator).Read(row) || row.Cells.front().starts_with('#'))
        {
            return false;
        }
        const auto has = [&](BomField field)
        { return std::ranges::any_of(row.Cells, [&](const auto& cell) { return FieldOf(cell) == field; }); };
        const bool hasPart = has(BomField::Part) || has(BomField::Value);
        const bool hasPlace = has(BomField::Reference) || has(BomField::Net);
        table.Headings = row.Cells;
        return table.Kind == BomTableKind::Bill ? hasPart && (hasPlace || has(BomField::DCBias)) : hasPlace;
    }

    void TakeColumns(std::size_t line)
    {
        for (std::size_t i = 0; i < table.Headings.size(); ++i)
        {
            TakeColumn(i, line);
        }
        auto& part = table.Columns[static_cast<std::size_t>(BomField::Part)];
        part = part ? part : table.Columns[static_cast<std::size_t>(BomField::Value)];
        for (const ChosenColumn& column : chosen)
        {
            const bool isThere = std::ranges::any_of(table.Headings, [&](const auto& heading)
                                                     { return Trimmed(heading) == Trimmed(column.Heading); });
            if (!isThere)
            {
                Fault(line, "there is no column \"" + column.Heading + '"');
            }
        }
    }

    void Note(std::size_t line, std::string text)
    {
        if (table.Notes.size() < MostBomNotes)
        {
            table.Notes.push_back({line, std::move(text)});
        }
    }

    void Fault(std::size_t line, std::string text)
    {
        if (table.Faults.size() < MostBomNotes)
        {
            table.Faults.push_back({line, std::move(text)});
        }
    }

    void TakeColumn(std::size_t index, std::size_t line)
    {
        const auto& heading = table.Headings[index];
        const auto field = FieldOf(heading);
        const auto told = OneLine(heading);
        if (!field && IsAmbiguousHeading(heading))
        {
            Note(line, "column \"" + told +
                           "\" is not taken; if it is the bias, say --column \"dc bias=" + told + '"');
        }
        if (!field)
        {
            return;
        }
        auto& column = table.Columns[static_cast<std::size_t>(*field)];
        if (column && *field != BomField::Value)
        {
            Note(line, "column \"" + told + "\" is not taken; the " + std::string(KindOf(*field).Name) +
                           " stands in \"" + OneLine(table.Headings[*column]) + '"');
        }
        column = column ? column : std::optional(index);
    }

    void TakeDefault(std::string_view line, std::size_t number)
    {
        const auto colon = line.find(':');
        if (!line.starts_with('#') || colon == std::string_view::npos)
        {
            return;
        }
        const auto field = FieldOfHeading(line.substr(1, colon - 1));
        // Spreadsheets end all lines with as many separators as the longest has.
        auto value = Trimmed(line.substr(colon + 1));
        value.erase(value.find_last_not_of(",;\t\" ") + 1);
        if (field && !value.empty())
        {
            auto& cell = table.Defaults[static_cast<std::size_t>(*field)];
            cell =
                BomCell{.Text = WithUnit(WithDecimalPoints(value), UnitOfHeading(line.substr(1, colon - 1))),
                        .Line = number,
                        .IsOfConditions = table.Kind == BomTableKind::Conditions};
        }
        else if (!field && table.Kind == BomTableKind::Conditions)
        {
            Note(number, '"' + OneLine(Trimmed(line.substr(1, colon - 1))) +
                             "\" is the name of nothing that a condition is");
        }
    }

    void CheckRow(const TableRow& row, std::size_t line)
    {
        if (!row.Fault.empty())
        {
            Fault(line, row.Fault);
        }
        for (std::size_t i = 0; i < BomFieldCount; ++i)
        {
            const auto column = table.Columns[i];
            const bool isList = static_cast<BomField>(i) == BomField::Reference;
            if (!isList && column && *column < row.Cells.size() && row.Cells[*column].size() > LongestBomCell)
            {
                Fault(line, std::string(KindOf(static_cast<BomField>(i)).Name) + ": longer than 1,000 bytes");
            }
        }
    }

    void ReadRows(std::string_view rest, std::size_t firstLine)
    {
        TableCells cells(rest, table.Separator);
        TableRow row;
        cells.Read(row);
        for (CheckRow(row, firstLine); cells.Read(row);)
        {
            row.Line += firstLine - 1;
            CheckRow(row, row.Line);
            if (table.Rows.size() == MostBomRows)
            {
                Fault(row.Line, "there are more than 100,000 rows");
                return;
            }
            if (std::ranges::any_of(row.Cells, [](const auto& cell) { return !Trimmed(cell).empty(); }))
            {
                table.Rows.push_back(row);
            }
        }
    }

    BomTable& table;
    std::span<const ChosenColumn> chosen;
};
} // namespace

std::optional<BomCell> BomTable::CellOf(const TableRow& row, BomField field) const
{
    const auto column = Columns[static_cast<std::size_t>(field)];
    auto text = column && *column < row.Cells.size() ? Trimmed(row.Cells[*column]) : std::string();
    if (text.empty())
    {
        return std::nullopt;
    }
    const bool isValue = field > BomField::Net;
    text = isValue && TakesDecimalComma(Separator) ? WithDecimalPoints(text) : text;
    text = KindOf(field).Measures ? WithUnit(text, UnitOfHeading(Headings[*column])) : text;
    return BomCell{.Text = text, .Line = row.Line, .IsOfConditions = Kind == BomTableKind::Conditions};
}

BomCells BomTable::CellsOf(const TableRow& row) const
{
    BomCells cells;
    for (std::size_t i = 0; i < BomFieldCount; ++i)
    {
        cells[i] = CellOf(row, static_cast<BomField>(i));
    }
    return cells;
}

BomTable ReadBomTable(std::string bytes, BomTableKind kind, std::span<const ChosenColumn> chosen)
{
    BomTable table{.Kind = kind, .Separator = ',', .Headings = {}, .Rows = {}, .Notes = {}, .Faults = {}};
    if (bytes.size() > MostBomBytes)
    {
        table.Faults.push_back({0, "there are more than 16 MiB"});
        return table;
    }
    const auto text = Utf8Of(std::move(bytes));
    Reading(table, chosen).Read(text);
    return table;
}

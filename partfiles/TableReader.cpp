#include "partfiles/TableReader.h"

#include "partdata/KeyedCollection.h"
#include "partdata/OneLine.h"
#include "partdata/PartTable.h"
#include "partdata/Windows1252.h"
#include "partfiles/NameCell.h"
#include "partfiles/PairBytes.h"
#include "partfiles/TableForm.h"
#include "separatedtext/TableCells.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <system_error>
#include <unordered_map>

/// A table with more columns than twice all that there are is something else, and each would be a fault.
static constexpr std::size_t MostHeadings = 2 * TableColumns;
/// Faults after which a table is not read on: enough to see what is wrong with it.
static constexpr std::size_t MostErrors = 10000;

namespace
{
/// Reads a number cell into `value`; returns what is wrong with it, or nothing.
std::string ReadNumber(std::string_view text, float& value)
{
    const char* const end = text.data() + text.size();
    if (text.starts_with("0x"))
    {
        std::uint32_t bits = 0;
        const auto read = std::from_chars(text.data() + 2, end, bits, 16);
        if (text.size() != 10 || read.ec != std::errc() || read.ptr != end)
        {
            return "not the eight hexadecimal digits of a single";
        }
        value = std::bit_cast<float>(bits);
        return {};
    }
    const auto read = std::from_chars(text.data(), end, value);
    if (read.ptr == end && read.ec == std::errc::result_out_of_range)
    {
        return "the number is too large or too small for a single";
    }
    // "inf" and "nan" are read too, but have no place in a table.
    return read.ptr == end && read.ec == std::errc() && std::isfinite(value) ? "" : "not a number";
}

/// The text, or none where it is empty: an empty name or heading shows nothing of what is wrong with it.
std::optional<std::string> Filled(std::string text)
{
    return text.empty() ? std::nullopt : std::optional(std::move(text));
}

/// True for a row that would be whole without its last comma.
bool EndsInComma(const TableRow& row, std::size_t cells)
{
    return row.Cells.size() == cells + 1 && row.Cells.back().empty();
}

/// Reads one table; each step adds what is wrong to the contents.
class TableReader
{
public:
    explicit TableReader(std::string_view tableText)
        : text(tableText)
        , cells(tableText)
    {
    }

    TableContents Read();

private:
    bool ReadHeadings();
    void ReadPart(const TableRow& row);
    void ReadName(const TableRow& row, std::size_t cell, std::string& name);
    void CheckUnique(const TableRow& row, const TablePart& part);
    void Add(std::size_t line, std::string_view column, std::optional<std::string> value, std::string message)
    {
        contents.Errors.push_back({line, std::string(column), std::move(value), std::move(message)});
    }

    std::string_view text;
    TableCells cells;
    TableContents contents;
    /// The column of each cell of a row.
    std::vector<std::size_t> columns;
    /// The line of each part number of each form, by its text without regard to letter case.
    std::array<std::unordered_map<std::string, std::size_t>, PartNumForms> lines;
};

TableContents TableReader::Read()
{
    contents.LineEnd = LineEndOf(text);
    if (const auto fault = FaultOfForm(text))
    {
        Add(fault->Line, "", {}, fault->Message);
        return std::move(contents);
    }
    if (!ReadHeadings())
    {
        return std::move(contents);
    }
    std::size_t rows = 0;
    for (TableRow row; cells.Read(row);)
    {
        if (++rows > MostParts)
        {
            Add(row.Line, "", {}, "more than " + std::to_string(MostParts) + " parts");
            break;
        }
        if (contents.Errors.size() >= MostErrors)
        {
            Add(row.Line, "", {}, "too many errors: the rest of the table was not read");
            break;
        }
        ReadPart(row);
    }
    return std::move(contents);
}

bool TableReader::ReadHeadings()
{
    TableRow row;
    if (!cells.Read(row))
    {
        Add(1, "", {}, "the line of headings is missing");
        return false;
    }
    if (!row.Fault.empty())
    {
        Add(row.Line, "", Filled(row.Cells.back()), row.Fault);
        return false;
    }
    if (row.Cells.size() > MostHeadings)
    {
        Add(row.Line, "", {}, std::to_string(row.Cells.size()) + " columns: this is no table of parts");
        return false;
    }
    if (EndsInComma(row, TableColumns))
    {
        Add(row.Line, "", {}, "a comma ends the line: there is a column without a heading");
        return false;
    }
    for (const auto& heading : row.Cells)
    {
        std::size_t column = 0;
        while (column < TableColumns && ColumnHeading(column) != heading)
        {
            ++column;
        }
        if (column == TableColumns)
        {
            Add(row.Line, "", Filled(heading), "no column of this name is known");
        }
        else if (std::ranges::find(columns, column) != columns.end())
        {
            Add(row.Line, heading, {}, "the column stands twice");
        }
        columns.push_back(column);
    }
    for (std::size_t column = 0; column < TableColumns; ++column)
    {
        if (std::ranges::find(columns, column) == columns.end())
        {
            Add(row.Line, ColumnHeading(column), {}, "the column is missing");
        }
    }
    return contents.Errors.empty();
}

void TableReader::ReadPart(const TableRow& row)
{
    const auto before = contents.Errors.size();
    const auto last = row.Cells.size() - 1;
    if (!row.Fault.empty())
    {
        Add(row.Line, last < columns.size() ? ColumnHeading(columns[last]) : "", Filled(row.Cells.back()),
            row.Fault);
        return;
    }
    if (row.Cells.size() != columns.size())
    {
        Add(row.Line, "", {},
            std::to_string(row.Cells.size()) + " cells instead of " + std::to_string(columns.size()) +
                (EndsInComma(row, columns.size()) ? ": a comma ends the line" : ""));
        return;
    }
    TablePart part;
    part.Line = row.Line;
    for (std::size_t i = 0; i < row.Cells.size(); ++i)
    {
        if (columns[i] < NameFields)
        {
            ReadName(row, i, part.Names[columns[i]]);
            continue;
        }
        const auto fault = ReadNumber(row.Cells[i], part.Data[columns[i] - NameFields]);
        if (!fault.empty())
        {
            Add(row.Line, ColumnHeading(columns[i]), row.Cells[i], fault);
        }
    }
    CheckUnique(row, part);
    if (contents.Errors.size() == before)
    {
        contents.Parts.push_back(std::move(part));
    }
}

void TableReader::ReadName(const TableRow& row, std::size_t cell, std::string& name)
{
    const auto fault = ReadNameCell(row.Cells[cell], name);
    if (!fault.empty())
    {
        Add(row.Line, ColumnHeading(columns[cell]), row.Cells[cell], fault);
    }
}

void TableReader::CheckUnique(const TableRow& row, const TablePart& part)
{
    for (std::size_t form = 0; form < PartNumForms; ++form)
    {
        const auto [first, isNew] = lines[form].try_emplace(FoldedKey(part.Names[form]), row.Line);
        if (!isNew)
        {
            Add(row.Line, ColumnHeading(form), Filled(Utf8FromWindows1252(part.Names[form])),
                "the part number stands in line " + std::to_string(first->second) + " already");
        }
    }
}
} // namespace

PartRecord RecordOf(const TablePart& part)
{
    PartRecord record;
    std::copy_n(part.Names.begin(), PartNumForms, record.PartNum.begin());
    std::copy_n(part.Names.begin() + FirstSizeCodeField, CodeForms, record.SizeCode.begin());
    std::copy_n(part.Names.begin() + FirstTccField, CodeForms, record.Tcc.begin());
    record.Data = part.Data;
    return record;
}

TableContents ReadTable(std::string_view text)
{
    return TableReader(text).Read();
}

std::string LineOf(const TableError& error, const std::string& file)
{
    std::string line = file + ": line " + std::to_string(error.Line);
    if (!error.Column.empty())
    {
        line += ": " + error.Column;
    }
    if (error.Value)
    {
        line += ": \"" + OneLine(*error.Value) + "\"";
    }
    return line + ": " + error.Message;
}

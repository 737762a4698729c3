/// A bill of materials, and the conditions of its parts, as tables whose columns are understood: told what is
/// not, or rows that a table written of them has again.

#include "board/BomTable.h"
#include "fuzz/Allocations.h"
#include "fuzz/Require.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

static void RequireNotes(const std::vector<BomNote>& notes, std::size_t lines, std::size_t bytes)
{
    std::size_t told = 0;
    for (const BomNote& note : notes)
    {
        Require(note.Line <= lines, "what is told stands in a line of the file, or right behind it");
        Require(!note.Text.empty(), "a note says something");
        told += note.Text.size();
    }
    Require(told <= 4096 + 64 * bytes, "what is told is in proportion to the file");
}

static void RequireCells(const BomTable& table, const TableRow& row)
{
    for (std::size_t i = 0; i < BomFieldCount; ++i)
    {
        const auto cell = table.CellOf(row, static_cast<BomField>(i));
        Require(!cell || !cell->Text.empty(), "a cell without a text is none");
        Require(!cell || cell->Line == row.Line, "a cell stands in its row");
        Require(!cell || table.Columns[i].has_value(), "a cell has a column");
    }
}

static void RequireRows(const BomTable& table, std::size_t lines)
{
    Require(std::ranges::all_of(table.Columns, [&](const auto& column)
                                { return !column || *column < table.Headings.size(); }),
            "a meaning has a column of the table");
    Require(std::ranges::is_sorted(table.Rows, {}, &TableRow::Line), "rows stand in their order");
    for (const TableRow& row : table.Rows)
    {
        Require(row.Line >= 1 && row.Line <= lines, "a row begins in a line of the file");
        RequireCells(table, row);
    }
}

static void AddRow(std::string& text, const std::vector<std::string>& cells, char separator)
{
    for (std::size_t i = 0; i < cells.size(); ++i)
    {
        text += i == 0 ? "" : std::string(1, separator);
        text += '"';
        for (const char c : cells[i])
        {
            text += c == '"' ? "\"\"" : std::string(1, c);
        }
        text += '"';
    }
    text += '\n';
}

static std::string Written(const BomTable& table)
{
    std::string text;
    AddRow(text, table.Headings, table.Separator);
    std::ranges::for_each(table.Rows, [&](const TableRow& row) { AddRow(text, row.Cells, table.Separator); });
    return text;
}

static void RequireSameAgain(const BomTable& table)
{
    const auto again = ReadBomTable(Written(table), table.Kind);
    Require(again.Faults.empty(), "what was read can be read again");
    Require(again.Separator == table.Separator, "separators are known again");
    Require(again.Headings == table.Headings && again.Columns == table.Columns, "headings are the same");
    Require(std::ranges::equal(again.Rows, table.Rows, {}, &TableRow::Cells, &TableRow::Cells),
            "rows are the same");
    for (std::size_t i = 0; i < table.Rows.size(); ++i)
    {
        Require(again.CellsOf(again.Rows[i]) == table.CellsOf(table.Rows[i]), "cells mean the same");
    }
}

static void TryKind(const std::string& bytes, BomTableKind kind)
{
    const auto breaks =
        static_cast<std::size_t>(std::ranges::count_if(bytes, [](char c) { return c == '\n' || c == '\r'; }));
    ForgetAllocations();
    const auto table = ReadBomTable(bytes, kind);
    Require(LargestAllocation() <= 65536 + 64 * bytes.size(), "memory is in proportion to the file");
    RequireNotes(table.Notes, breaks + 2, bytes.size());
    RequireNotes(table.Faults, breaks + 2, bytes.size());
    RequireRows(table, breaks + 2);
    if (table.Faults.empty())
    {
        RequireSameAgain(table);
    }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    TryKind(bytes, BomTableKind::Bill);
    TryKind(bytes, BomTableKind::Conditions);
    return 0;
}

#pragma once

/// Puts rows of part tables together: one into a table, and several tables into one.

#include "partfiles/TableReader.h"

#include <span>

/// A table without errors, with the name of its file.
struct NamedTable
{
    std::string File;
    TableContents Table;
};

/// Puts a part behind those of a table. A row that bears one of its numbers, in any of the four forms and any
/// letter case, is replaced where `replace` says so.
///
/// Returns why not, a line; nothing where it was done. Refused are a number that stands in the table already,
/// a part whose numbers stand in more than one row to be replaced, and one part too many.
std::optional<std::string> PutIntoTable(NamedTable& table, TablePart part, bool replace);

/// One table of several.
struct MergedTable
{
    TableContents Table;
    /// A line for each number that stands in two rows, in whichever forms and letter case, with both places,
    /// and one for too many parts. With any of them the table is of no use.
    std::vector<std::string> Faults;
};

/// The parts of all tables, in order, with the line ends of the first.
MergedTable MergeTables(std::span<const NamedTable> tables);

/// The table as text.
std::string TextOf(const TableContents& table);

#pragma once

/// Reads a table of parts back, and tells line by line what is wrong with it.

#include "partfiles/Columns.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Size of the largest table of parts, far beyond any range.
inline constexpr std::uintmax_t MostTableBytes = std::uintmax_t{256} << 20;

/// One part of a table; the names are in the code page of the index file.
struct TablePart
{
    /// Where it stands in its table, counted from 1.
    std::size_t Line = 0;
    std::array<std::string, NameFields> Names;
    std::array<float, DataValues> Data{};
};

/// The part as the charts take it; its texts are views into the row.
PartRecord RecordOf(const TablePart& part);

/// One thing that is wrong with a table.
struct TableError
{
    /// Counted from 1.
    std::size_t Line = 0;
    /// Heading of the column; empty where the whole line is to blame.
    std::string Column;
    /// What stands in the cell, even if that is nothing; no text where no cell is to blame.
    std::optional<std::string> Value;
    std::string Message;
};

/// A table as it was read. With errors, the parts are those of the lines without any.
struct TableContents
{
    std::vector<TablePart> Parts;
    /// What ends the line of headings: CRLF or LF.
    std::string LineEnd = "\n";
    std::vector<TableError> Errors;
};

/// Reads a table. One that is saved in another form, such as with semicolons or in UTF-16, has one error,
/// which tells that. Columns are known by their headings and may stand in any order; each must stand once.
/// After 10,000 errors it is not read on.
TableContents ReadTable(std::string_view text);

/// One line: "parts.csv: line 17: rated voltage [V]: "6,3": not a number".
std::string LineOf(const TableError& error, const std::string& file);

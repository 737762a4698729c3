#pragma once

/// Takes separated text with quoted cells apart into rows.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// One row of a table.
struct TableRow
{
    /// Number of the line it begins on, counted from 1.
    std::size_t Line = 0;
    std::vector<std::string> Cells;
    /// What is wrong with the quotes of the last cell; the rest of its line has then been skipped.
    std::string Fault;
};

/// A cursor over a text whose cells stand between commas, or another separator. CRLF, LF and CR end a row; a
/// cell in double quotes may hold separators, line breaks, and quotes written twice; empty lines are skipped,
/// and so is a byte-order mark.
class TableCells
{
public:
    explicit TableCells(std::string_view tableText, char cellSeparator = ',');

    /// Reads the next row; false at the end of the text.
    bool Read(TableRow& row);

private:
    std::string ReadQuoted(std::string& fault);
    std::string ReadPlain(std::string& fault);
    void SkipLineEnd();
    bool AtRowEnd() const { return text.empty() || text.front() == '\r' || text.front() == '\n'; }

    std::string_view text;
    char separator;
    std::size_t line = 1;
};

#pragma once

/// Lists as text: a row for each part, a column for each of its values.

#include <string>
#include <vector>

/// One line of a list, column by column, in UTF-8.
using ListRow = std::vector<std::string>;

/// Columns as wide as their widest text, each row on one line whatever its texts hold. Columns that
/// `areNumbers` tells stand to the right; the last one is not filled up. Columns of the rows beyond those are
/// not told.
std::string AlignedTable(std::vector<ListRow> rows, const std::vector<bool>& areNumbers);

/// The rows as CSV, in quotes what needs them.
std::string CsvOf(const std::vector<ListRow>& rows);

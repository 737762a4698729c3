#pragma once

/// Curves as comma-separated values, for spreadsheets and scripts: UTF-8, lines ended by line feeds.

#include "calc/ChartRecord.h"

#include <span>
#include <string>
#include <string_view>

/// Comment lines that begin with "#" tell part, chart and conditions; then the heading of X and Y with the
/// units of the numbers below.
///
/// Throws RunTimeError 5 for a chart type or an axis that does not exist.
std::string CsvHead(const ChartRecord& line, std::string_view partNumber);

/// X and Y as number text, "10000,1.5" and a line feed; nothing behind the comma for `NoValue`.
std::string CsvRow(float x, float y);

/// The rows of all 200 points.
std::string CsvRows(const ChartRecord& line);

/// A line with its part number on display.
struct NamedLine
{
    const ChartRecord& Line;
    std::string_view PartNumber;
};

/// Head and rows of each line, an empty line between. Throws as `CsvHead`.
std::string CurvesCsv(std::span<const NamedLine> lines);

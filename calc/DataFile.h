#pragma once

/// The saved data file: one curve with its conditions as plain text.

#include "calc/ChartRecord.h"
#include "partdata/PartRecord.h"

#include <string>
#include <string_view>

/// The whole text of a data file in the Windows-1252 code page, lines ended by carriage return and line feed:
/// title, chart type, part numbers, conditions, the column heading, and 200 lines of X and Y. An X of
/// frequency is in kHz. Control characters of part numbers are written as "\x0A".
///
/// @param line a line with its curve
/// @param view the naming of the part numbers
/// @param date the date of the title line, in the code page of the file
///
/// Throws RunTimeError 5 for a number that is no chart type, and for an axis or parameter name without a
/// unit.
std::string DataFileText(const ChartRecord& line, const PartRecord& part, CodeView view,
                         std::string_view date);

/// "0.00E+00" text of a curve's X value, in kHz when the axis is a frequency, as data files and printed data
/// pages show it.
std::string DataXText(const ChartRecord& line, std::size_t point);
/// "0.00E+00" text of a curve's Y value.
std::string DataYText(const ChartRecord& line, std::size_t point);

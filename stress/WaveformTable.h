#pragma once

/// The waveforms of a text that a simulator or an oscilloscope wrote.

#include "stress/Waveform.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The most rows, and the most bytes, of a text.
inline constexpr std::size_t MostWaveformRows = 10'000'000;
inline constexpr std::size_t MostWaveformBytes = std::size_t{1} << 30;

/// Throws WaveformError for a text of more bytes, so that nobody need read it before.
void RefuseTooLarge(std::uintmax_t bytes);

/// One column besides the time.
struct WaveColumn
{
    /// As the heading has it; the column's number where there is none.
    std::string Name;
    /// Counted as columns stand in the text, the time being 1; an index before it does not count.
    std::size_t Number;
    /// "A", "V" or empty, from a unit in the heading.
    std::string Unit;
    /// In A or V, one for each row.
    std::vector<double> Values;
};

/// The columns of a text, over their time.
struct WaveformTable
{
    /// In s; it never falls.
    std::vector<double> Seconds;
    std::vector<WaveColumn> Columns;

    /// A column as a waveform. The times of a waveform must go by.
    Waveform WaveformOf(const WaveColumn& column) const;
};

/// Reads a text in UTF-8, UTF-16 or Windows-1252: rows of numbers between tabs, semicolons, commas or
/// blanks, of which the first is the time. The last line before them is their heading if it has as many
/// cells. A decimal comma is taken beside a tab or a semicolon. Pages and blocks of columns that ngspice
/// prints one after another are joined; times that stand before each column are dropped. A unit such as [us]
/// or [mA] in a heading scales its column.
///
/// Throws WaveformError with the line for a row of another number of cells, text among numbers, a value that
/// is not finite and a time that falls; also for a binary file, less than 8 rows, and more than
/// `MostWaveformRows` or `MostWaveformBytes`. `betweenLines` is called every few thousand lines; what it
/// throws ends the reading.
WaveformTable ReadWaveforms(std::string bytes, const std::function<void()>& betweenLines = {});

/// True for a column that is named as simulators name currents, or has the unit A.
bool IsCurrent(const WaveColumn& column);

/// The column of a name, in any letter case, or of a number; where none is named the only one, else the only
/// current. Throws WaveformError that lists the names.
const WaveColumn& ColumnOf(const WaveformTable& table, const std::optional<std::string>& wanted);

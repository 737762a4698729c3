#pragma once

/// The store of all plotted lines of all chart windows.

#include "calc/ChartRecord.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What tells charts apart: lines that agree in these three belong to the same chart window.
struct ChartKey
{
    std::int16_t ChartType = 0;
    std::string XAxisName;
    std::string YAxisName;

    bool operator==(const ChartKey&) const = default;
};

/// Lines that a chart may hold, and panes beside it.
inline constexpr int MaximumLines = 6;

/// The chart that a line belongs to.
ChartKey KeyOf(const ChartRecord& record);

/// True when the line is of the chart.
bool BelongsTo(const ChartRecord& record, const ChartKey& key);

/// True when two lines are of the same chart, part, conditions and parameter.
bool SameLine(const ChartRecord& a, const ChartRecord& b);

/// The message that refuses to plot a line, or nothing.
///
/// @param isNew no line that is plotted is the same
/// @param sameCharts lines that the chart holds
std::optional<std::string> RefusalOfPlot(bool isNew, int sameCharts);

/// All plotted lines in the order of plotting. Records 0 to `CurrentChart` - 1 are plotted lines; the
/// record at `CurrentChart`, where there is one, is the working record of a command under way or empty.
///
/// A line is plotted in three steps: a `Plotting` writes it, its curve is computed, and `Commit` counts it.
class ChartStore
{
public:
    /// The records; never fewer than one.
    const std::vector<ChartRecord>& ChartData() const { return records; }
    /// The index at which the next line is written: the number of plotted lines.
    std::int16_t CurrentChart() const { return plotted; }
    /// The record at `CurrentChart`; there must be one.
    const ChartRecord& WorkingRecord() const;

    /// The plotted lines, without the working record.
    std::span<const ChartRecord> Lines() const;
    /// The same for the chart window that places their points.
    std::span<ChartRecord> LinesToPlace();

    /// How many plotted lines the chart has.
    int CountSameCharts(const ChartKey& key) const;

    /// Grows the store to `CurrentChart` and puts the record there; `CurrentChart` stays.
    void Write(ChartRecord record);
    /// Leaves an empty record at `CurrentChart`, as every command does that plots no line.
    void ClearWorkingRecord();

    /// Counts the working record as a plotted line: `CurrentChart` moves on.
    void Commit();
    /// Takes the last plotted line back, which could not be shown: an empty record stands in its place, at
    /// `CurrentChart` again.
    void RollBack();

    /// Removes every line of the chart; the other lines keep their order at lower indices.
    /// Without lines the store is one empty record. Returns the number of removed lines.
    int RemoveChart(const ChartKey& key);

private:
    std::vector<ChartRecord> records = std::vector<ChartRecord>(1);
    std::int16_t plotted = 0;
};

/// A line on its way into the store. Whichever way the command ends, an empty record is left at
/// `CurrentChart` unless the line was committed.
class Plotting
{
public:
    /// Writes the line, still without its curve.
    Plotting(ChartStore& chartStore, ChartRecord line);
    ~Plotting();
    Plotting(const Plotting&) = delete;
    Plotting& operator=(const Plotting&) = delete;

private:
    ChartStore& store;
    std::int16_t index;
};

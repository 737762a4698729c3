#include "calc/ChartStore.h"

#include "calc/Conditions.h"

#include <algorithm>
#include <cassert>
#include <utility>

ChartKey KeyOf(const ChartRecord& record)
{
    return {record.ChartType, record.XAxisName, record.YAxisName};
}

bool BelongsTo(const ChartRecord& record, const ChartKey& key)
{
    return record.ChartType == key.ChartType && record.XAxisName == key.XAxisName &&
           record.YAxisName == key.YAxisName;
}

bool SameLine(const ChartRecord& a, const ChartRecord& b)
{
    return BelongsTo(a, KeyOf(b)) && a.PartDataIndex == b.PartDataIndex &&
           a.ParameterName == b.ParameterName &&
           std::ranges::all_of(ConditionKinds(),
                               [&](const ConditionKind& kind) { return a.*kind.Value == b.*kind.Value; });
}

std::optional<std::string> RefusalOfPlot(bool isNew, int sameCharts)
{
    if (!isNew)
    {
        return "This Chart is already opened!";
    }
    if (sameCharts >= MaximumLines)
    {
        return "Maximum Numbers of this Chart Type open!";
    }
    return std::nullopt;
}

const ChartRecord& ChartStore::WorkingRecord() const
{
    assert(records.size() > static_cast<std::size_t>(plotted));
    return records[static_cast<std::size_t>(plotted)];
}

std::span<const ChartRecord> ChartStore::Lines() const
{
    return std::span(records).first(static_cast<std::size_t>(plotted));
}

std::span<ChartRecord> ChartStore::LinesToPlace()
{
    return std::span(records).first(static_cast<std::size_t>(plotted));
}

int ChartStore::CountSameCharts(const ChartKey& key) const
{
    const auto lines = Lines();
    return static_cast<int>(
        std::ranges::count_if(lines, [&](const ChartRecord& line) { return BelongsTo(line, key); }));
}

void ChartStore::Write(ChartRecord record)
{
    records.resize(static_cast<std::size_t>(plotted) + 1);
    records.back() = std::move(record);
}

void ChartStore::ClearWorkingRecord()
{
    Write({});
}

void ChartStore::Commit()
{
    assert(records.size() == static_cast<std::size_t>(plotted) + 1);
    ++plotted;
}

void ChartStore::RollBack()
{
    assert(plotted > 0);
    --plotted;
    ClearWorkingRecord();
}

int ChartStore::RemoveChart(const ChartKey& key)
{
    records.resize(static_cast<std::size_t>(plotted));
    const auto removed = static_cast<int>(
        std::erase_if(records, [&](const ChartRecord& line) { return BelongsTo(line, key); }));
    plotted = static_cast<std::int16_t>(plotted - removed);
    if (records.empty())
    {
        records.resize(1);
    }
    return removed;
}

Plotting::Plotting(ChartStore& chartStore, ChartRecord line)
    : store(chartStore)
    , index(chartStore.CurrentChart())
{
    store.Write(std::move(line));
}

Plotting::~Plotting()
{
    // The record was there to be written, so that to empty it takes no memory.
    if (store.CurrentChart() == index)
    {
        store.ClearWorkingRecord();
    }
}

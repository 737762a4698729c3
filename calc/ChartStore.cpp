#include "calc/ChartStore.h"

#include <algorithm>
#include <cassert>
#include <tuple>
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
    const auto identity = [](const ChartRecord& line)
    {
        return std::tie(line.ChartType, line.XAxisName, line.YAxisName, line.PartDataIndex,
                        line.DCBiasVoltage, line.HeatResistance, line.Frequency, line.AmbientTemp,
                        line.ParameterName, line.ParameterValue);
    };
    return identity(a) == identity(b);
}

std::span<const ChartRecord> ChartStore::Lines() const
{
    return std::span(ChartData).first(static_cast<std::size_t>(CurrentChart));
}

std::span<ChartRecord> ChartStore::Lines()
{
    return std::span(ChartData).first(static_cast<std::size_t>(CurrentChart));
}

int ChartStore::CountSameCharts(const ChartKey& key) const
{
    const auto lines = Lines();
    return static_cast<int>(
        std::ranges::count_if(lines, [&](const ChartRecord& line) { return BelongsTo(line, key); }));
}

void ChartStore::Write(ChartRecord record)
{
    ChartData.resize(static_cast<std::size_t>(CurrentChart) + 1);
    ChartData.back() = std::move(record);
}

void ChartStore::ClearWorkingRecord()
{
    Write({});
}

int ChartStore::RemoveChart(const ChartKey& key)
{
    ChartData.resize(static_cast<std::size_t>(CurrentChart));
    const auto removed = static_cast<int>(
        std::erase_if(ChartData, [&](const ChartRecord& line) { return BelongsTo(line, key); }));
    CurrentChart = static_cast<std::int16_t>(CurrentChart - removed);
    if (ChartData.empty())
    {
        ChartData.resize(1);
    }
    return removed;
}

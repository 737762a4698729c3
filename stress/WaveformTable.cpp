#include "stress/WaveformTable.h"

#include "stress/WaveHeading.h"
#include "stress/WaveformError.h"

#include <algorithm>
#include <charconv>

namespace
{
char LowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string Lower(std::string_view text)
{
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), LowerCase);
    return lower;
}

std::string NamesOf(const WaveformTable& table)
{
    std::string names;
    for (const WaveColumn& column : table.Columns)
    {
        const auto number = std::to_string(column.Number);
        names += (names.empty() ? "" : ", ") + number + (column.Name == number ? "" : " " + column.Name);
    }
    return names;
}

/// The columns that a predicate holds for.
template <class Holds> std::vector<const WaveColumn*> ColumnsThat(const WaveformTable& table, Holds holds)
{
    std::vector<const WaveColumn*> found;
    for (const WaveColumn& column : table.Columns)
    {
        if (holds(column))
        {
            found.push_back(&column);
        }
    }
    return found;
}

std::optional<std::size_t> NumberOf(std::string_view text)
{
    std::size_t number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isNumber = read.ec == std::errc() && read.ptr == text.data() + text.size();
    return isNumber ? std::optional(number) : std::nullopt;
}

const WaveColumn& ColumnNamed(const WaveformTable& table, const std::string& wanted)
{
    const auto name = Lower(wanted);
    auto found =
        ColumnsThat(table, [&](const WaveColumn& column)
                    { return Lower(column.Name) == name || Lower(WithoutUnit(column.Name)) == name; });
    if (const auto number = NumberOf(wanted); found.empty() && number)
    {
        found = ColumnsThat(table, [&](const WaveColumn& column) { return column.Number == *number; });
    }
    if (found.size() == 1)
    {
        return *found.front();
    }
    throw WaveformError((found.empty() ? "there is no column \"" : "several columns are called \"") + wanted +
                        "\"; there are " + NamesOf(table));
}
} // namespace

Waveform WaveformTable::WaveformOf(const WaveColumn& column) const
{
    std::vector<WavePoint> points(Seconds.size());
    for (std::size_t i = 0; i < points.size(); ++i)
    {
        points[i] = {Seconds[i], column.Values[i]};
    }
    return Waveform(std::move(points));
}

bool IsCurrent(const WaveColumn& column)
{
    const auto name = Lower(column.Name);
    return column.Unit == "A" || name.starts_with("i(") || name.starts_with("ix(") ||
           name.ends_with("#branch") || (name.starts_with('@') && name.ends_with("[i]"));
}

const WaveColumn& ColumnOf(const WaveformTable& table, const std::optional<std::string>& wanted)
{
    if (wanted)
    {
        return ColumnNamed(table, *wanted);
    }
    if (table.Columns.size() == 1)
    {
        return table.Columns.front();
    }
    const auto currents = ColumnsThat(table, IsCurrent);
    if (currents.size() != 1)
    {
        throw WaveformError("which column is the current? There are " + NamesOf(table));
    }
    return *currents.front();
}

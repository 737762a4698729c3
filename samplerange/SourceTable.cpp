#include "samplerange/SourceTable.h"

#include <array>
#include <charconv>
#include <cmath>
#include <stdexcept>

namespace
{

/// The fields between marks; a mark at the end is followed by an empty field.
std::vector<std::string_view> Split(std::string_view text, char mark)
{
    std::vector<std::string_view> fields;
    for (auto end = text.find(mark); end != std::string_view::npos; end = text.find(mark))
    {
        fields.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    fields.push_back(text);
    return fields;
}

/// The rows of a table, each with as many fields as there are columns.
std::vector<std::vector<std::string_view>> ReadRows(std::string_view text, std::size_t columns)
{
    std::vector<std::vector<std::string_view>> rows;
    bool headed = false;
    for (const auto line : Split(text, '\n'))
    {
        if (line.empty() || line.front() == '#')
        {
            continue;
        }
        auto fields = Split(line, ',');
        if (fields.size() != columns)
        {
            throw std::runtime_error("wrong number of fields: " + std::string(line));
        }
        if (headed)
        {
            rows.push_back(std::move(fields));
        }
        headed = true;
    }
    return rows;
}

double ReadNumber(std::string_view text)
{
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
    {
        throw std::runtime_error("not a number: " + std::string(text));
    }
    return value;
}

std::int64_t ReadPicofarads(std::string_view text)
{
    const auto unit = text.empty() ? ' ' : text.back();
    const double scale = unit == 'p' ? 1 : unit == 'n' ? 1e3 : unit == 'u' ? 1e6 : 0;
    if (scale == 0)
    {
        throw std::runtime_error("not a capacitance: " + std::string(text));
    }
    return std::llround(ReadNumber(text.substr(0, text.size() - 1)) * scale);
}

Measured ReadMeasured(std::string_view text)
{
    if (text == "all")
    {
        return Measured::All;
    }
    if (text == "capacitance")
    {
        return Measured::Capacitance;
    }
    if (text == "power")
    {
        return Measured::Power;
    }
    throw std::runtime_error("neither all, capacitance nor power: " + std::string(text));
}

} // namespace

std::vector<CaseSize> ReadSizes(std::string_view text)
{
    std::vector<CaseSize> sizes;
    for (const auto& row : ReadRows(text, 9))
    {
        CaseSize size{.Eia = std::string(row[0]),
                      .Jis = std::string(row[1]),
                      .Series = std::string(row[2]),
                      .Number = std::string(row[3]),
                      .LengthMm = ReadNumber(row[4]),
                      .WidthMm = ReadNumber(row[5]),
                      .ThicknessesMm = {},
                      .HeatResistance = ReadNumber(row[7]),
                      .ElectrodeMilliohms = ReadNumber(row[8])};
        for (const auto thickness : Split(row[6], ' '))
        {
            size.ThicknessesMm.push_back(ReadNumber(thickness));
        }
        sizes.push_back(std::move(size));
    }
    return sizes;
}

std::vector<Family> ReadFamilies(std::string_view text)
{
    std::vector<Family> families;
    for (const auto& row : ReadRows(text, 6))
    {
        families.push_back({.Size = std::string(row[0]),
                            .Characteristic = std::string(row[1]),
                            .Volts = ReadNumber(row[2]),
                            .LowestPf = ReadPicofarads(row[3]),
                            .HighestPf = ReadPicofarads(row[4]),
                            .Data = ReadMeasured(row[5])});
    }
    return families;
}

std::vector<std::int64_t> E6Capacitances(std::int64_t lowestPf, std::int64_t highestPf)
{
    constexpr std::array<std::int64_t, 6> steps = {10, 15, 22, 33, 47, 68};
    std::vector<std::int64_t> values;
    for (std::int64_t decade = 1; decade * steps.front() <= highestPf; decade *= 10)
    {
        for (const auto step : steps)
        {
            const auto value = step * decade;
            if (value >= lowestPf && value <= highestPf)
            {
                values.push_back(value);
            }
        }
    }
    return values;
}

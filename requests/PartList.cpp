#include "requests/PartList.h"

#include "calc/ChartKinds.h"
#include "calc/NumberText.h"
#include "partdata/KeyedCollection.h"
#include "partdata/OneLine.h"
#include "partdata/Windows1252.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>

/// A text in UTF-8 as the keys of the part files are compared.
static std::string Folded(std::string_view utf8)
{
    return FoldedKey(Windows1252FromUtf8(utf8));
}

static bool Holds(std::string_view partNum, const std::string& foldedText)
{
    return FoldedKey(partNum).find(foldedText) != std::string::npos;
}

static bool IsOneOf(const std::array<std::string_view, CodeForms>& names, const std::string& wanted)
{
    return std::ranges::any_of(names, [&](auto name) { return EqualKeys(name, wanted); });
}

static bool IsOffered(const PartRecord& part, std::optional<std::int16_t> chartType)
{
    if (chartType)
    {
        return IsAvailable(part, *chartType);
    }
    return std::ranges::any_of(ChartKinds(),
                               [&](const ChartKind& kind) { return IsAvailable(part, NumberOf(kind)); });
}

std::vector<const PartRecord*> FilterParts(const PartTable& parts, const PartFilter& filter)
{
    const auto text = Folded(filter.Text);
    const auto size = Folded(filter.SizeCode.value_or(""));
    const auto tcc = Folded(filter.Tcc.value_or(""));
    const auto agrees = [&](const PartRecord& part)
    {
        return IsOffered(part, filter.ChartType) && (!filter.SizeCode || IsOneOf(part.SizeCode, size)) &&
               (!filter.Tcc || IsOneOf(part.Tcc, tcc)) &&
               (!filter.Capacitance || part.Data[Value::Capacitance] == *filter.Capacitance) &&
               (!filter.RatedVoltage || part.Data[Value::RatedVoltage] == *filter.RatedVoltage) &&
               std::ranges::any_of(part.PartNum, [&](auto number) { return Holds(number, text); });
    };
    std::vector<const PartRecord*> found;
    for (const PartRecord& part : parts.PartData)
    {
        if (agrees(part))
        {
            found.push_back(&part);
        }
    }
    return found;
}

namespace
{
/// One part as its columns.
using Row = std::array<std::string, 6>;
} // namespace

static std::vector<std::string> ChartsOf(const PartRecord& part)
{
    std::vector<std::string> charts;
    for (const ChartKind& kind : ChartKinds())
    {
        if (IsAvailable(part, NumberOf(kind)))
        {
            charts.emplace_back(kind.CommandName);
        }
    }
    return charts;
}

static Row RowOf(const PartRecord& part, CodeView code, const CurveSettings& settings)
{
    const auto naming = static_cast<std::size_t>(code);
    std::string charts;
    for (const auto& chart : ChartsOf(part))
    {
        charts += (charts.empty() ? "" : " ") + chart;
    }
    return {ShownPartNum(part, code, settings),         Utf8FromWindows1252(part.SizeCode[naming]),
            Utf8FromWindows1252(part.Tcc[naming]),      NumberText(part.Data[Value::Capacitance]),
            NumberText(part.Data[Value::RatedVoltage]), charts};
}

/// Characters of a UTF-8 text.
static std::size_t WidthOf(const std::string& text)
{
    return static_cast<std::size_t>(std::ranges::count_if(text, [](char c) { return (c & 0xC0) != 0x80; }));
}

/// The rows with each text on one line.
static std::vector<Row> OnOneLine(std::vector<Row> rows)
{
    for (Row& row : rows)
    {
        std::ranges::transform(row, row.begin(), WithoutControls);
    }
    return rows;
}

/// Columns as wide as their widest text; numbers stand to the right.
static std::string TableOf(const std::vector<Row>& rows)
{
    constexpr std::size_t gap = 2;
    Row::size_type widths[std::tuple_size_v<Row>] = {};
    for (const Row& row : rows)
    {
        for (std::size_t i = 0; i < row.size(); ++i)
        {
            widths[i] = std::max(widths[i], WidthOf(row[i]));
        }
    }
    std::string text;
    for (const Row& row : rows)
    {
        for (std::size_t i = 0; i < row.size(); ++i)
        {
            const bool isNumber = i == 3 || i == 4;
            const bool isLast = i + 1 == row.size();
            const std::string padding(widths[i] - WidthOf(row[i]), ' ');
            text += isNumber ? padding + row[i] : row[i] + (isLast ? "" : padding);
            text.append(isLast ? 0 : gap, ' ');
        }
        text += '\n';
    }
    return text;
}

/// A field of CSV, in quotes where it needs them.
static std::string FieldOf(const std::string& text)
{
    if (text.find_first_of("\",\r\n") == std::string::npos)
    {
        return text;
    }
    std::string quoted = "\"";
    for (const char c : text)
    {
        quoted.append(c == '"' ? 2 : 1, c);
    }
    return quoted + '"';
}

static std::string CsvOf(const std::vector<Row>& rows)
{
    std::string text;
    for (const Row& row : rows)
    {
        for (std::size_t i = 0; i < row.size(); ++i)
        {
            text += (i == 0 ? "" : ",") + FieldOf(row[i]);
        }
        text += '\n';
    }
    return text;
}

/// One part a line, within the brackets of a list.
static std::string Json(const std::vector<const PartRecord*>& parts, CodeView code,
                        const CurveSettings& settings)
{
    std::string text = "[";
    for (const PartRecord* part : parts)
    {
        const Row row = RowOf(*part, code, settings);
        nlohmann::ordered_json object;
        object["part"] = row[0];
        object["size"] = row[1];
        object["characteristic"] = row[2];
        object["capacitance"] = nlohmann::json::parse(row[3]);
        object["ratedVoltage"] = nlohmann::json::parse(row[4]);
        object["charts"] = ChartsOf(*part);
        text += (text.size() == 1 ? "\n" : ",\n") +
                object.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
    }
    return text + "\n]\n";
}

static std::vector<Row> RowsOf(const Row& headings, const std::vector<const PartRecord*>& parts,
                               CodeView code, const CurveSettings& settings)
{
    std::vector<Row> rows = {headings};
    for (const PartRecord* part : parts)
    {
        rows.push_back(RowOf(*part, code, settings));
    }
    return rows;
}

static std::string Table(const std::vector<const PartRecord*>& parts, CodeView code,
                         const CurveSettings& settings)
{
    return TableOf(OnOneLine(
        RowsOf({"PART", "SIZE", "TCC", "CAPACITANCE[pF]", "RATED[V]", "CHARTS"}, parts, code, settings)));
}

static std::string Csv(const std::vector<const PartRecord*>& parts, CodeView code,
                       const CurveSettings& settings)
{
    return CsvOf(RowsOf({"part", "size", "characteristic", "capacitance [pF]", "rated voltage [V]", "charts"},
                        parts, code, settings));
}

std::span<const PartListFormat> PartListFormats()
{
    static constexpr std::array<PartListFormat, 3> formats = {{
        {{"table", "if left out"}, Table},
        {{"csv", ""}, Csv},
        {{"json", ""}, Json},
    }};
    return formats;
}

#include "requests/PartList.h"

#include "calc/ChartKinds.h"
#include "calc/NumberText.h"
#include "partdata/FieldNames.h"
#include "partdata/KeyedCollection.h"
#include "partdata/OneLine.h"
#include "partdata/Windows1252.h"
#include "requests/UnitEntry.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <iterator>

/// A text in UTF-8 as the keys of the part files are compared.
static std::string Folded(std::string_view utf8)
{
    return FoldedKey(Windows1252FromUtf8(utf8));
}

static bool Holds(std::string_view partNum, const std::string& foldedText)
{
    return FoldedKey(partNum).find(foldedText) != std::string::npos;
}

/// The names of a part in either code.
using CodeNames = std::array<std::string_view, CodeForms> PartRecord::*;

namespace
{
/// A size or characteristic that is looked for.
struct WantedName
{
    CodeNames Names;
    std::string Folded;
    std::size_t Code;

    bool IsOf(const PartRecord& part) const { return EqualKeys((part.*Names)[Code], Folded); }
};
} // namespace

/// Looked up in the code in force, and in the other one only if it stands nowhere there.
static std::optional<WantedName> WantedIn(const PartTable& parts, CodeNames names,
                                          const std::optional<std::string>& typed, CodeView code)
{
    if (!typed)
    {
        return std::nullopt;
    }
    WantedName wanted{names, Folded(*typed), static_cast<std::size_t>(code)};
    const bool isThere =
        std::ranges::any_of(parts.PartData, [&](const PartRecord& part) { return wanted.IsOf(part); });
    wanted.Code = isThere ? wanted.Code : CodeForms - 1 - wanted.Code;
    return wanted;
}

static bool Agrees(const std::optional<ValueRange>& range, float value)
{
    return !range || (value >= range->Lowest && value <= range->Highest);
}

ValueRange RangeInUnit(std::string_view typed, Quantity quantity)
{
    const auto dots = typed.find("..");
    if (dots == std::string_view::npos)
    {
        const float value = ValueInUnit(typed, quantity);
        return {value, value};
    }
    const auto lowest = typed.substr(0, dots);
    const auto highest = typed.substr(dots + 2);
    ValueRange range;
    if (!lowest.empty() || highest.empty())
    {
        range.Lowest = ValueInUnit(lowest, quantity);
    }
    if (!highest.empty())
    {
        range.Highest = ValueInUnit(highest, quantity);
    }
    return range;
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
    const auto size = WantedIn(parts, &PartRecord::SizeCode, filter.SizeCode, filter.Code);
    const auto tcc = WantedIn(parts, &PartRecord::Tcc, filter.Tcc, filter.Code);
    const auto agrees = [&](const PartRecord& part)
    {
        return IsOffered(part, filter.ChartType) && (!size || size->IsOf(part)) &&
               (!tcc || tcc->IsOf(part)) && Agrees(filter.Capacitance, part.Data[Value::Capacitance]) &&
               Agrees(filter.RatedVoltage, part.Data[Value::RatedVoltage]) &&
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
/// One part as its columns: what every list tells, then all its names.
using Row = std::vector<std::string>;
/// What every list tells.
constexpr std::size_t shownColumns = 6;
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
    Row row = {ShownPartNum(part, code, settings),         Utf8FromWindows1252(part.SizeCode[naming]),
               Utf8FromWindows1252(part.Tcc[naming]),      NumberText(part.Data[Value::Capacitance]),
               NumberText(part.Data[Value::RatedVoltage]), charts};
    std::ranges::transform(NamesOf(part), std::back_inserter(row), Utf8FromWindows1252);
    return row;
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
    std::size_t widths[shownColumns] = {};
    for (const Row& row : rows)
    {
        for (std::size_t i = 0; i < shownColumns; ++i)
        {
            widths[i] = std::max(widths[i], WidthOf(row[i]));
        }
    }
    std::string text;
    for (const Row& row : rows)
    {
        for (std::size_t i = 0; i < shownColumns; ++i)
        {
            const bool isNumber = i == 3 || i == 4;
            const bool isLast = i + 1 == shownColumns;
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
        const auto names = row.begin() + shownColumns;
        object["partNumbers"] = Row(names, names + FirstSizeCodeField);
        object["sizes"] = Row(names + FirstSizeCodeField, names + FirstTccField);
        object["characteristics"] = Row(names + FirstTccField, row.end());
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
    Row headings = {"part", "size", "characteristic", "capacitance [pF]", "rated voltage [V]", "charts"};
    for (std::size_t i = 0; i < NameFields; ++i)
    {
        headings.emplace_back(NameHeading(i));
    }
    return CsvOf(RowsOf(headings, parts, code, settings));
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

#include "requests/PartList.h"

#include "calc/ChartKinds.h"
#include "calc/NumberText.h"
#include "partdata/FieldNames.h"
#include "partdata/Windows1252.h"
#include "requests/ListJson.h"
#include "requests/ListText.h"
#include "requests/RequestError.h"
#include "requests/UnitEntry.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <iterator>

static RequestError NoRange(std::string_view typed, const char* reason)
{
    return {RequestErrorKind::NotANumber, "", '"' + std::string(typed) + "\" " + reason};
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
    if (lowest.empty() && highest.empty())
    {
        throw NoRange(typed, "is neither a number nor a range");
    }
    ValueRange range;
    if (!lowest.empty())
    {
        range.Lowest = ValueInUnit(lowest, quantity);
    }
    if (!highest.empty())
    {
        range.Highest = ValueInUnit(highest, quantity);
    }
    if (range.Highest < range.Lowest)
    {
        throw NoRange(typed, "ends below where it begins");
    }
    return range;
}

/// What every list tells, before all names of the part.
static constexpr std::size_t shownColumns = 6;

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

static ListRow RowOf(const PartRecord& part, CodeView code, const CurveSettings& settings)
{
    const auto naming = static_cast<std::size_t>(code);
    std::string charts;
    for (const auto& chart : ChartsOf(part))
    {
        charts += (charts.empty() ? "" : " ") + chart;
    }
    ListRow row = {ShownPartNum(part, code, settings),         Utf8FromWindows1252(part.SizeCode[naming]),
                   Utf8FromWindows1252(part.Tcc[naming]),      NumberText(part.Data[Value::Capacitance]),
                   NumberText(part.Data[Value::RatedVoltage]), charts};
    std::ranges::transform(NamesOf(part), std::back_inserter(row), Utf8FromWindows1252);
    return row;
}

static std::string JsonOf(const std::vector<const PartRecord*>& parts, CodeView code,
                          const CurveSettings& settings)
{
    JsonList list;
    for (const PartRecord* part : parts)
    {
        const ListRow row = RowOf(*part, code, settings);
        nlohmann::ordered_json object;
        object["part"] = row[0];
        object["size"] = row[1];
        object["characteristic"] = row[2];
        object["capacitance"] = nlohmann::json::parse(row[3]);
        object["ratedVoltage"] = nlohmann::json::parse(row[4]);
        object["charts"] = ChartsOf(*part);
        const auto names = row.begin() + shownColumns;
        object["partNumbers"] = ListRow(names, names + FirstSizeCodeField);
        object["sizes"] = ListRow(names + FirstSizeCodeField, names + FirstTccField);
        object["characteristics"] = ListRow(names + FirstTccField, row.end());
        list.Add(object);
    }
    return list.Text();
}

static std::vector<ListRow> RowsOf(const ListRow& headings, const std::vector<const PartRecord*>& parts,
                                   CodeView code, const CurveSettings& settings)
{
    std::vector<ListRow> rows = {headings};
    for (const PartRecord* part : parts)
    {
        rows.push_back(RowOf(*part, code, settings));
    }
    return rows;
}

static std::string Table(const std::vector<const PartRecord*>& parts, CodeView code,
                         const CurveSettings& settings)
{
    return AlignedTable(
        RowsOf({"PART", "SIZE", "TCC", "CAPACITANCE[pF]", "RATED[V]", "CHARTS"}, parts, code, settings),
        {false, false, false, true, true, false});
}

static std::string Csv(const std::vector<const PartRecord*>& parts, CodeView code,
                       const CurveSettings& settings)
{
    ListRow headings = {"part", "size", "characteristic", "capacitance [pF]", "rated voltage [V]", "charts"};
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
        {{"json", ""}, JsonOf},
    }};
    return formats;
}

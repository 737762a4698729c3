#include "requests/FoundList.h"

#include "calc/NumberText.h"
#include "partdata/Windows1252.h"
#include "requests/FourDigits.h"
#include "requests/ListJson.h"
#include "requests/ListText.h"
#include "requests/RequestError.h"
#include "requests/SortKeys.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <iterator>

namespace
{
/// In the order of the columns.
constexpr std::array<std::string_view, FoundColumnCount> tableHeadings = {
    "PART",         "SIZE",         "TCC",           "CAPACITANCE",   "RATED[V]",     "EFFECTIVE", "LEFT[%]",
    "PERMITTED[C]", "LOSS[mOhm]",   "CURRENT[Arms]", "VOLTAGE[Vrms]", "APPARENT[VA]", "POWER[W]",  "RISE[C]",
    "BODY[C]",      "RIPPLE[Vrms]", "COUNT",         "TOTAL",         "AREA[mm2]",
};

/// Stands in the table where a column is empty.
constexpr std::string_view noValue = "-";

bool IsName(FoundColumn column)
{
    return column <= FoundColumn::Characteristic;
}

std::string NameOf(const PartRecord& part, FoundColumn column, CodeView code, const CurveSettings& settings)
{
    const auto naming = static_cast<std::size_t>(code);
    switch (column)
    {
    case FoundColumn::Part:
        return ShownPartNum(part, code, settings);
    case FoundColumn::Size:
        return Utf8FromWindows1252(part.SizeCode[naming]);
    default:
        return Utf8FromWindows1252(part.Tcc[naming]);
    }
}

/// What the list tells of a column: the value as a single, where the question asks for it.
std::optional<float> ToldValue(const FoundPart& found, const FoundColumnKind& column,
                               const FindQuestion& question)
{
    const auto value = found.ValueOf(column.Id);
    return value && Applies(column.Needs, question) ? std::optional(static_cast<float>(*value))
                                                    : std::nullopt;
}

std::string TableText(float value, const FoundColumnKind& column)
{
    return column.Unit == "pF" ? CapacitanceInFourDigits(value) : FourDigits(value);
}

std::vector<const FoundColumnKind*> ColumnsOf(const FindQuestion& question)
{
    std::vector<const FoundColumnKind*> columns;
    for (const FoundColumnKind& column : FoundColumns())
    {
        if (Applies(column.Needs, question))
        {
            columns.push_back(&column);
        }
    }
    return columns;
}

std::string Table(std::span<const FoundPart> found, const FindQuestion& question,
                  const CurveSettings& settings)
{
    const auto columns = ColumnsOf(question);
    std::vector<ListRow> rows(1);
    std::vector<bool> areNumbers;
    for (const auto* column : columns)
    {
        rows[0].emplace_back(tableHeadings[static_cast<std::size_t>(column->Id)]);
        areNumbers.push_back(!IsName(column->Id));
    }
    for (const FoundPart& part : found)
    {
        ListRow& row = rows.emplace_back();
        for (const auto* column : columns)
        {
            const auto value = ToldValue(part, *column, question);
            row.push_back(IsName(column->Id) ? NameOf(part.Part(), column->Id, question.At.View, settings)
                                             : (value ? TableText(*value, *column) : std::string(noValue)));
        }
    }
    return AlignedTable(std::move(rows), areNumbers);
}

/// "effective capacitance [pF]".
std::string CsvHeading(const FoundColumnKind& column)
{
    std::string heading(column.Key);
    std::ranges::replace(heading, '-', ' ');
    return column.Unit.empty() ? heading : heading + " [" + std::string(column.Unit) + ']';
}

std::string Csv(std::span<const FoundPart> found, const FindQuestion& question, const CurveSettings& settings)
{
    std::vector<ListRow> rows(1);
    std::ranges::transform(FoundColumns(), std::back_inserter(rows[0]), CsvHeading);
    for (const FoundPart& part : found)
    {
        ListRow& row = rows.emplace_back();
        for (const FoundColumnKind& column : FoundColumns())
        {
            const auto value = ToldValue(part, column, question);
            row.push_back(IsName(column.Id) ? NameOf(part.Part(), column.Id, question.At.View, settings)
                                            : (value ? NumberText(*value) : ""));
        }
    }
    return CsvOf(rows);
}

/// "effectiveCapacitance".
std::string JsonKey(const FoundColumnKind& column)
{
    std::string key;
    bool beginsWord = false;
    for (const char c : column.Key)
    {
        if (c != '-')
        {
            key += beginsWord ? static_cast<char>(c - 'a' + 'A') : c;
        }
        beginsWord = c == '-';
    }
    return key;
}

std::string Json(std::span<const FoundPart> found, const FindQuestion& question,
                 const CurveSettings& settings)
{
    JsonList list;
    for (const FoundPart& part : found)
    {
        nlohmann::ordered_json object;
        for (const FoundColumnKind& column : FoundColumns())
        {
            auto& member = object[JsonKey(column)];
            if (IsName(column.Id))
            {
                member = NameOf(part.Part(), column.Id, question.At.View, settings);
            }
            else if (const auto value = ToldValue(part, column, question))
            {
                member = nlohmann::json::parse(NumberText(*value));
            }
        }
        list.Add(object);
    }
    return list.Text();
}
} // namespace

std::vector<std::string_view> FoundColumnNames()
{
    std::vector<std::string_view> names;
    std::ranges::transform(FoundColumns(), std::back_inserter(names), &FoundColumnKind::Key);
    return names;
}

static std::string_view WhatGives(ColumnNeed need)
{
    switch (need)
    {
    case ColumnNeed::Frequency:
        return "a frequency";
    case ColumnNeed::Load:
        return "a load";
    case ColumnNeed::CurrentLoad:
        return "a current";
    default:
        return "parts in parallel";
    }
}

std::vector<FoundKey> FoundKeysOf(std::string_view typed, const FindQuestion& question)
{
    std::vector<FoundKey> keys;
    for (const TypedKey& key : TypedKeysOf(typed, FoundColumnNames()))
    {
        const FoundColumnKind& column = FoundColumns()[key.Index];
        if (!Applies(column.Needs, question))
        {
            throw RequestError(RequestErrorKind::UnknownValue, "sort",
                               "key \"" + std::string(column.Key) + "\" wants " +
                                   std::string(WhatGives(column.Needs)));
        }
        keys.push_back({.Column = column.Id, .Downwards = key.Downwards});
    }
    return keys;
}

std::span<const FoundListFormat> FoundListFormats()
{
    static constexpr std::array<FoundListFormat, 3> formats = {{
        {{"table", "if left out"}, Table},
        {{"csv", ""}, Csv},
        {{"json", ""}, Json},
    }};
    return formats;
}

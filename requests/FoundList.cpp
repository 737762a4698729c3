#include "requests/FoundList.h"

#include "calc/NumberText.h"
#include "partdata/Windows1252.h"
#include "requests/FourDigits.h"
#include "requests/ListJson.h"
#include "requests/ListText.h"
#include "requests/PlaceHeading.h"
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
    "PART",      "SIZE",         "TCC",        "CAPACITANCE",   "RATED[V]",      "EFFECTIVE",
    "LEFT[%]",   "PERMITTED[C]", "LOSS[mOhm]", "CURRENT[Arms]", "VOLTAGE[Vrms]", "APPARENT[VA]",
    "POWER[W]",  "RISE[C]",      "BODY[C]",    "RIPPLE[Vrms]",  "COUNT",         "TOTAL",
    "AREA[mm2]", "MOST",         "MARGIN[C]",  "WARM",
};

/// What requests call the condition of a place.
std::string_view ConditionKeyOf(Quantity quantity)
{
    return std::ranges::find(ConditionKinds(), std::optional(quantity), &ConditionKind::Measures)->Key;
}

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

/// One column of the table: a value, or where it occurs.
struct TableColumn
{
    const FoundColumnKind* Kind;
    std::optional<FoundPlace> Place = {};

    bool IsNumber() const { return !Place && !IsName(Kind->Id); }
};

/// "13.2V 85C".
std::string PlaceText(const FoundPart& part, FoundPlace place)
{
    const auto conditions = part.ConditionsAt(place);
    if (!conditions)
    {
        return std::string(noValue);
    }
    const auto& quantities = KindOf(place).Conditions;
    const auto text = [&](std::size_t i)
    { return FourDigits((*conditions)[i]).append(KindOf(quantities[i]).Unit); };
    return text(0) + ' ' + text(1);
}

std::string_view HeadingOf(const TableColumn& column, bool hasWorst)
{
    const bool isLeast = hasWorst && column.Kind->Id == FoundColumn::EffectiveCapacitance;
    return column.Place ? "AT"
                        : (isLeast ? "LEAST" : tableHeadings[static_cast<std::size_t>(column.Kind->Id)]);
}

/// A value of ranges with its place, and behind it the other end that the list tells of it.
void AddWithWorst(std::vector<TableColumn>& columns, const FoundColumnKind& column)
{
    columns.push_back({&column});
    for (const FoundPlaceKind& place : FoundPlaces())
    {
        if (place.Of == column.Id)
        {
            columns.push_back({&column, place.Id});
        }
    }
    if (column.Id == FoundColumn::EffectiveCapacitance || column.Id == FoundColumn::Rise)
    {
        const bool isRise = column.Id == FoundColumn::Rise;
        AddWithWorst(columns, KindOf(isRise ? FoundColumn::Margin : FoundColumn::MostCapacitance));
    }
}

/// The columns that the question asks for; at a point there is no worst to tell.
std::vector<TableColumn> ColumnsOf(const FindQuestion& question)
{
    std::vector<TableColumn> columns;
    for (const FoundColumnKind& column : FoundColumns())
    {
        const bool isOther = column.Id == FoundColumn::MostCapacitance || column.Id == FoundColumn::Margin ||
                             column.Id == FoundColumn::WarmCapacitance;
        if (isOther || !Applies(column.Needs, question))
        {
            continue;
        }
        question.At.HasWorst() ? AddWithWorst(columns, column) : columns.push_back({&column});
        if (column.Id == FoundColumn::Body)
        {
            columns.push_back({&KindOf(FoundColumn::WarmCapacitance)});
        }
    }
    return columns;
}

std::string TableCell(const FoundPart& part, const TableColumn& column, const FindQuestion& question,
                      const CurveSettings& settings)
{
    if (column.Place)
    {
        return PlaceText(part, *column.Place);
    }
    if (IsName(column.Kind->Id))
    {
        return NameOf(part.Part(), column.Kind->Id, question.At.View, settings);
    }
    const auto value = ToldValue(part, *column.Kind, question);
    return value ? TableText(*value, *column.Kind) : std::string(noValue);
}

std::string Table(std::span<const FoundPart> found, const FindQuestion& question,
                  const CurveSettings& settings)
{
    const auto columns = ColumnsOf(question);
    std::vector<ListRow> rows(1);
    std::vector<bool> areNumbers;
    for (const auto& column : columns)
    {
        rows[0].emplace_back(HeadingOf(column, question.At.HasWorst()));
        areNumbers.push_back(column.IsNumber());
    }
    for (const FoundPart& part : found)
    {
        ListRow& row = rows.emplace_back();
        for (const auto& column : columns)
        {
            row.push_back(TableCell(part, column, question, settings));
        }
    }
    return AlignedTable(std::move(rows), areNumbers);
}

/// The places that the list tells behind a column, so that all of ranges stands at its end.
std::vector<const FoundPlaceKind*> PlacesBehind(FoundColumn column)
{
    std::vector<const FoundPlaceKind*> places;
    for (const FoundPlaceKind& place : FoundPlaces())
    {
        const bool isOfMargin = place.Id == FoundPlace::Margin;
        if (column == (isOfMargin ? FoundColumn::Margin : FoundColumn::MostCapacitance))
        {
            places.push_back(&place);
        }
    }
    return places;
}

/// The conditions that tell a place, where the question asks for what occurs there.
std::optional<std::array<float, 2>> ToldPlace(const FoundPart& part, const FoundPlaceKind& place,
                                              const FindQuestion& question)
{
    return Applies(KindOf(place.Of).Needs, question) ? part.ConditionsAt(place.Id) : std::nullopt;
}

/// "effective capacitance [pF]".
std::string CsvHeading(const FoundColumnKind& column)
{
    std::string heading(column.Key);
    std::ranges::replace(heading, '-', ' ');
    return column.Unit.empty() ? heading : heading + " [" + std::string(column.Unit) + ']';
}

} // namespace

std::vector<std::string> FoundHeadings()
{
    ListRow headings;
    for (const FoundColumnKind& column : FoundColumns())
    {
        headings.push_back(CsvHeading(column));
        for (const auto* place : PlacesBehind(column.Id))
        {
            headings.push_back(PlaceHeading(place->Key, place->Conditions[0]));
            headings.push_back(PlaceHeading(place->Key, place->Conditions[1]));
        }
    }
    return headings;
}

std::vector<std::string> FoundTexts(const FoundPart& part, const FindQuestion& question,
                                    const CurveSettings& settings)
{
    ListRow row;
    for (const FoundColumnKind& column : FoundColumns())
    {
        const auto value = ToldValue(part, column, question);
        row.push_back(IsName(column.Id) ? NameOf(part.Part(), column.Id, question.At.View, settings)
                                        : (value ? NumberText(*value) : ""));
        for (const auto* place : PlacesBehind(column.Id))
        {
            const auto conditions = ToldPlace(part, *place, question);
            row.push_back(conditions ? NumberText((*conditions)[0]) : "");
            row.push_back(conditions ? NumberText((*conditions)[1]) : "");
        }
    }
    return row;
}

namespace
{
std::string Csv(std::span<const FoundPart> found, const FindQuestion& question, const CurveSettings& settings)
{
    std::vector<ListRow> rows = {FoundHeadings()};
    std::ranges::transform(found, std::back_inserter(rows),
                           [&](const FoundPart& part) { return FoundTexts(part, question, settings); });
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

void AddPlaces(nlohmann::ordered_json& object, const FoundPart& part, FoundColumn column,
               const FindQuestion& question)
{
    for (const auto* place : PlacesBehind(column))
    {
        auto& member = object[std::string(place->Key) + "At"];
        if (const auto conditions = ToldPlace(part, *place, question))
        {
            for (std::size_t i = 0; i < conditions->size(); ++i)
            {
                member[std::string(ConditionKeyOf(place->Conditions[i]))] = JsonNumber((*conditions)[i]);
            }
        }
    }
}

std::string JsonOf(std::span<const FoundPart> found, const FindQuestion& question,
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
                member = JsonNumber(*value);
            }
            AddPlaces(object, part, column.Id, question);
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
        {{"json", ""}, JsonOf},
    }};
    return formats;
}

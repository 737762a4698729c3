#include "partfiles/TableMerge.h"

#include "partdata/KeyedCollection.h"
#include "partdata/OneLine.h"
#include "partdata/PartTable.h"
#include "partdata/Windows1252.h"
#include "partfiles/TableWriter.h"

#include <algorithm>
#include <set>
#include <unordered_map>

namespace
{
std::span<const std::string> NumbersOf(const TablePart& part)
{
    return std::span(part.Names).first(PartNumForms);
}

std::string Quoted(const std::string& number)
{
    return '"' + OneLine(Utf8FromWindows1252(number)) + '"';
}

/// The rows that bear one of the part's numbers.
std::set<std::size_t> RowsOf(const TableContents& table, const TablePart& part)
{
    std::set<std::string> numbers;
    for (const auto& number : NumbersOf(part))
    {
        numbers.insert(FoldedKey(number));
    }
    std::set<std::size_t> rows;
    for (std::size_t i = 0; i < table.Parts.size(); ++i)
    {
        if (std::ranges::any_of(NumbersOf(table.Parts[i]), [&numbers](const std::string& number)
                                { return numbers.contains(FoldedKey(number)); }))
        {
            rows.insert(i);
        }
    }
    return rows;
}

std::string TooManyParts()
{
    return "more than " + std::to_string(MostParts) + " parts";
}

/// Where a number stands.
struct Place
{
    const NamedTable* Table;
    const TablePart* Part;
};

/// Gathers the numbers of all rows, and those that stand in two.
class NumberPlaces
{
public:
    void Add(const NamedTable& table, const TablePart& part, std::vector<std::string>& faults)
    {
        std::set<const TablePart*> others;
        for (std::size_t form = 0; form < PartNumForms; ++form)
        {
            const auto& number = part.Names[form];
            const auto [first, isNew] = places.try_emplace(FoldedKey(number), Place{&table, &part});
            const auto& place = first->second;
            if (!isNew && place.Part != &part && others.insert(place.Part).second)
            {
                faults.push_back(
                    LineOf({part.Line, std::string(NameHeading(form)), Utf8FromWindows1252(number),
                            "the part number stands in " + place.Table->File + ", line " +
                                std::to_string(place.Part->Line) + ", too"},
                           table.File));
            }
        }
    }

private:
    std::unordered_map<std::string, Place> places;
};
} // namespace

std::optional<std::string> PutIntoTable(NamedTable& table, TablePart part, bool replace)
{
    auto& parts = table.Table.Parts;
    const auto rows = RowsOf(table.Table, part);
    const auto lineOf = [&](std::size_t row) { return "line " + std::to_string(parts[row].Line); };
    if (rows.empty())
    {
        if (parts.size() >= MostParts)
        {
            return table.File + ": " + TooManyParts();
        }
        parts.push_back(std::move(part));
        return std::nullopt;
    }
    const auto first = *rows.begin();
    if (!replace)
    {
        return table.File + ": " + lineOf(first) + ": " + Quoted(part.Names[0]) +
               ": the part number stands in the table already; --replace puts the new row in its place";
    }
    if (rows.size() > 1)
    {
        return table.File + ": " + lineOf(first) + " and " + lineOf(*rows.rbegin()) + ": " +
               Quoted(part.Names[0]) + ": the numbers of the part stand in more than one row";
    }
    parts[first] = std::move(part);
    return std::nullopt;
}

MergedTable MergeTables(std::span<const NamedTable> tables)
{
    MergedTable merged;
    NumberPlaces places;
    for (const auto& table : tables)
    {
        for (const auto& part : table.Table.Parts)
        {
            places.Add(table, part, merged.Faults);
            merged.Table.Parts.push_back(part);
        }
    }
    merged.Table.LineEnd = tables.empty() ? "\n" : tables.front().Table.LineEnd;
    if (merged.Table.Parts.size() > MostParts)
    {
        merged.Faults.push_back(TooManyParts());
    }
    return merged;
}

std::string TextOf(const TableContents& table)
{
    std::vector<PartRecord> records;
    records.reserve(table.Parts.size());
    std::ranges::transform(table.Parts, std::back_inserter(records), RecordOf);
    return TableText(records, table.LineEnd);
}

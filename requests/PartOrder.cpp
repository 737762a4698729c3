#include "requests/PartOrder.h"

#include "requests/Names.h"

#include <algorithm>
#include <array>
#include <map>
#include <ranges>

static constexpr std::array<std::string_view, 5> columnNames = {"part", "size", "characteristic",
                                                                "capacitance", "rated-voltage"};

std::vector<std::string> SortNames()
{
    return {columnNames.begin(), columnNames.end()};
}

static SortKey SortKeyOf(std::string_view typed)
{
    const bool downwards = typed.starts_with('-');
    const auto name = typed.substr(downwards ? 1 : 0);
    return {static_cast<PartColumn>(IndexOfName(name, columnNames, "key", "sort")), downwards};
}

std::vector<SortKey> SortKeysOf(std::string_view typed)
{
    std::vector<SortKey> keys;
    std::size_t comma = typed.find(',');
    for (; comma != std::string_view::npos; comma = typed.find(','))
    {
        keys.push_back(SortKeyOf(typed.substr(0, comma)));
        typed.remove_prefix(comma + 1);
    }
    keys.push_back(SortKeyOf(typed));
    return keys;
}

namespace
{
/// Where each name first stands in the table.
using Appearances = std::map<std::string_view, std::size_t>;

/// Compares two parts of a table by one key.
class PartLess
{
public:
    PartLess(const PartTable& parts, SortKey sortKey, CodeView code, const CurveSettings& settings)
        : key(sortKey)
        , view(static_cast<std::size_t>(code))
        , form(view + settings.NumberingOffset)
    {
        for (const PartRecord& part : parts.PartData)
        {
            sizes.emplace(part.SizeCode[view], sizes.size());
            tccs.emplace(part.Tcc[view], tccs.size());
        }
    }

    bool operator()(const PartRecord* a, const PartRecord* b) const
    {
        return key.Downwards ? IsBefore(*b, *a) : IsBefore(*a, *b);
    }

private:
    bool IsBefore(const PartRecord& a, const PartRecord& b) const
    {
        switch (key.Column)
        {
        case PartColumn::Part:
            return a.PartNum[form] < b.PartNum[form];
        case PartColumn::Size:
            return sizes.at(a.SizeCode[view]) < sizes.at(b.SizeCode[view]);
        case PartColumn::Characteristic:
            return tccs.at(a.Tcc[view]) < tccs.at(b.Tcc[view]);
        case PartColumn::Capacitance:
            return a.Data[Value::Capacitance] < b.Data[Value::Capacitance];
        case PartColumn::RatedVoltage:
            break;
        }
        return a.Data[Value::RatedVoltage] < b.Data[Value::RatedVoltage];
    }

    SortKey key;
    std::size_t view;
    std::size_t form;
    Appearances sizes;
    Appearances tccs;
};
} // namespace

void SortParts(std::vector<const PartRecord*>& found, const PartTable& parts,
               const std::vector<SortKey>& keys, CodeView code, const CurveSettings& settings)
{
    // The weightiest key last: each pass keeps the order of those before it among equals.
    for (const SortKey& key : std::views::reverse(keys))
    {
        std::ranges::stable_sort(found, PartLess(parts, key, code, settings));
    }
}

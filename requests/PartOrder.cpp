#include "requests/PartOrder.h"

#include "find/Appearances.h"
#include "requests/SortKeys.h"

#include <algorithm>
#include <array>

static constexpr std::array<std::string_view, 5> columnNames = {"part", "size", "characteristic",
                                                                "capacitance", "rated-voltage"};

std::vector<std::string> SortNames()
{
    return {columnNames.begin(), columnNames.end()};
}

std::vector<SortKey> SortKeysOf(std::string_view typed)
{
    std::vector<SortKey> keys;
    for (const TypedKey& key : TypedKeysOf(typed, columnNames))
    {
        keys.push_back({static_cast<PartColumn>(key.Index), key.Downwards});
    }
    return keys;
}

namespace
{
/// Compares two parts of a table by one key.
class PartLess
{
public:
    PartLess(const PartTable& parts, SortKey sortKey, CodeView code, const CurveSettings& settings)
        : key(sortKey)
        , form(static_cast<std::size_t>(code) + settings.NumberingOffset)
        , sizes(parts, &PartRecord::SizeCode, code)
        , tccs(parts, &PartRecord::Tcc, code)
    {
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
            return sizes(a) < sizes(b);
        case PartColumn::Characteristic:
            return tccs(a) < tccs(b);
        case PartColumn::Capacitance:
            return a.Data[Value::Capacitance] < b.Data[Value::Capacitance];
        case PartColumn::RatedVoltage:
            break;
        }
        return a.Data[Value::RatedVoltage] < b.Data[Value::RatedVoltage];
    }

    SortKey key;
    std::size_t form;
    Appearances sizes;
    Appearances tccs;
};
} // namespace

void SortParts(std::vector<const PartRecord*>& found, const PartTable& parts,
               const std::vector<SortKey>& keys, CodeView code, const CurveSettings& settings)
{
    // The weightiest key last: each pass keeps the order of those before it among equals.
    for (auto key = keys.rbegin(); key != keys.rend(); ++key)
    {
        std::ranges::stable_sort(found, PartLess(parts, *key, code, settings));
    }
}

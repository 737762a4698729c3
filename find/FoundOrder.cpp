#include "find/FoundOrder.h"

#include "find/Appearances.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <limits>

namespace
{
/// What a part is compared by, upwards.
using Rank = std::function<double(const FoundPart&)>;

/// A found part as one key sees it.
struct Ranked
{
    double Rank;
    std::uint32_t Index;
};

using Order = std::vector<Ranked>;

Rank AppearanceRank(const PartTable& parts, Appearances::Names names, CodeView code)
{
    return [appearances = Appearances(parts, names, code)](const FoundPart& found)
    { return static_cast<double>(appearances(found.Part())); };
}

Rank ValueRank(FoundKey key)
{
    return [key](const FoundPart& found)
    {
        const auto value = found.ValueOf(key.Column);
        return value ? (key.Downwards ? -*value : *value) : std::numeric_limits<double>::infinity();
    };
}

Rank UpwardRank(const PartTable& parts, FoundColumn column, CodeView code)
{
    switch (column)
    {
    case FoundColumn::Part:
        return [&parts](const FoundPart& found)
        { return static_cast<double>(&found.Part() - parts.PartData.data()); };
    case FoundColumn::Size:
        return AppearanceRank(parts, &PartRecord::SizeCode, code);
    default:
        return AppearanceRank(parts, &PartRecord::Tcc, code);
    }
}

Rank RankOf(const PartTable& parts, FoundKey key, CodeView code)
{
    if (key.Column > FoundColumn::Characteristic)
    {
        return ValueRank(key);
    }
    auto upward = UpwardRank(parts, key.Column, code);
    return key.Downwards ? [upward](const FoundPart& found) { return -upward(found); } : upward;
}

void SortBy(Order& order, const std::vector<FoundPart>& found, const Rank& rank)
{
    for (Ranked& ranked : order)
    {
        ranked.Rank = rank(found[ranked.Index]);
    }
    if (!std::ranges::is_sorted(order, {}, &Ranked::Rank))
    {
        std::ranges::stable_sort(order, {}, &Ranked::Rank);
    }
}

/// Brings a part into the cache while another one is moved: the parts of an order lie anywhere in memory.
void FetchAhead(const FoundPart& part)
{
    constexpr std::size_t cacheLine = 64;
    const auto* const first = reinterpret_cast<const char*>(&part);
    for (std::size_t at = 0; at < sizeof(FoundPart); at += cacheLine)
    {
        __builtin_prefetch(first + at);
    }
}

/// Brings the parts into an order, in place: room for all of them anew costs more than the sorting. The
/// indices of the order are used up.
void Permute(std::vector<FoundPart>& found, Order& order)
{
    for (std::uint32_t start = 0; start < order.size(); ++start)
    {
        const FoundPart first = found[start];
        std::uint32_t place = start;
        while (order[place].Index != start)
        {
            const auto from = order[place].Index;
            FetchAhead(found[order[from].Index]);
            found[place] = found[from];
            order[place].Index = place;
            place = from;
        }
        found[place] = first;
        order[place].Index = place;
    }
}
} // namespace

std::vector<FoundKey> LeastBoard()
{
    return {{.Column = FoundColumn::Area}, {.Column = FoundColumn::Count}};
}

void SortFound(std::vector<FoundPart>& found, const PartTable& parts, const std::vector<FoundKey>& keys,
               CodeView code)
{
    Order order;
    order.reserve(found.size());
    for (std::uint32_t i = 0; i < found.size(); ++i)
    {
        order.push_back({.Rank = 0, .Index = i});
    }
    // The weightiest key last: each pass keeps the order of those before it among equals.
    for (auto key = keys.rbegin(); key != keys.rend(); ++key)
    {
        SortBy(order, found, RankOf(parts, *key, code));
    }
    Permute(found, order);
}

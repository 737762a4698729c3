#pragma once

/// Values looked up by a text key without regard to letter case.

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Upper-case form of an ASCII or Latin-1 letter; any other character as it is.
char FoldCase(char c);

/// The key with `FoldCase` of each character: the same for keys equal without regard to letter case.
std::string FoldedKey(std::string_view key);

/// True when two keys are equal without regard to letter case.
bool EqualKeys(std::string_view a, std::string_view b);

/// A well-mixed number that is the same for keys equal without regard to letter case.
std::uint64_t HashKey(std::string_view key);

/// An insertion-ordered collection of values with unique, case-insensitive keys. The keys' texts must
/// outlive the collection. Holds at most 65,535 entries.
///
/// The entries stand in one vector; an open-addressing table of 4-byte slots finds them. A slot keeps 16
/// bits of the key's hash beside the entry's number, so that hardly any foreign key is ever compared.
template <class Value> class KeyedCollection
{
public:
    /// Makes room for `count` entries.
    void Reserve(std::size_t count);

    /// Adds a value; false, and nothing changed, when the key is present already.
    bool Add(Value value, std::string_view key);

    /// The value of the key, or null.
    const Value* Find(std::string_view key) const;

    std::size_t size() const { return entries.size(); }

private:
    struct Entry
    {
        std::string_view key;
        Value value;
    };

    /// Hash bits above, number of the entry counted from 1 below; 0 is an empty slot.
    using Slot = std::uint32_t;

    static constexpr std::size_t LeastSlots = 16;
    static constexpr Slot NumberBits = 0xFFFF;

    static Slot HashBits(std::uint64_t hash) { return static_cast<Slot>(hash) & ~NumberBits; }
    const Entry& EntryOf(Slot slot) const { return entries[(slot & NumberBits) - 1]; }

    /// The slot that holds the key, or the empty slot where it belongs. There is always an empty one.
    std::size_t SlotOf(std::string_view key, std::uint64_t hash) const;

    /// Makes the table `count` slots large, a power of two, and enters all entries afresh.
    void Rebuild(std::size_t count);

    std::vector<Entry> entries;
    std::vector<Slot> slots;
};

template <class Value> void KeyedCollection<Value>::Reserve(std::size_t count)
{
    std::size_t slotCount = LeastSlots;
    while (slotCount / 4 * 3 < count)
    {
        slotCount *= 2;
    }
    entries.reserve(count);
    if (slotCount > slots.size())
    {
        Rebuild(slotCount);
    }
}

template <class Value> bool KeyedCollection<Value>::Add(Value value, std::string_view key)
{
    if (entries.size() >= slots.size() / 4 * 3)
    {
        Rebuild(slots.empty() ? LeastSlots : slots.size() * 2);
    }
    const auto hash = HashKey(key);
    auto& slot = slots[SlotOf(key, hash)];
    if (slot != 0)
    {
        return false;
    }
    assert(entries.size() < NumberBits);
    entries.push_back({key, std::move(value)});
    slot = HashBits(hash) | static_cast<Slot>(entries.size());
    return true;
}

template <class Value> const Value* KeyedCollection<Value>::Find(std::string_view key) const
{
    if (slots.empty())
    {
        return nullptr;
    }
    const auto slot = slots[SlotOf(key, HashKey(key))];
    return slot == 0 ? nullptr : &EntryOf(slot).value;
}

template <class Value>
std::size_t KeyedCollection<Value>::SlotOf(std::string_view key, std::uint64_t hash) const
{
    const auto mask = slots.size() - 1;
    for (auto i = static_cast<std::size_t>(hash >> 32) & mask;; i = (i + 1) & mask)
    {
        const auto slot = slots[i];
        if (slot == 0)
        {
            return i;
        }
        if (HashBits(slot) == HashBits(hash) && EqualKeys(EntryOf(slot).key, key))
        {
            return i;
        }
    }
}

template <class Value> void KeyedCollection<Value>::Rebuild(std::size_t count)
{
    slots.assign(count, 0);
    Slot number = 0;
    for (const auto& entry : entries)
    {
        const auto hash = HashKey(entry.key);
        slots[SlotOf(entry.key, hash)] = HashBits(hash) | ++number;
    }
}

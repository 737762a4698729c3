#pragma once

/// The part table: every capacitor of the range, and the ways to look one up.

#include "partdata/KeyedCollection.h"
#include "partdata/PartRecord.h"

#include <array>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Parts that a table holds at most, since their indices are 16-bit numbers.
inline constexpr std::size_t MostParts = std::numeric_limits<std::int16_t>::max();
/// Size of the largest index file, far beyond any range of parts: some two thousand bytes for each of the
/// most parts. A larger file is something else, and is not loaded to find out.
inline constexpr std::uintmax_t MostIndexBytes = std::uintmax_t{64} << 20;

/// The parts in index-file order with their lookup maps. Filled once, read-only afterwards; movable only,
/// since all texts are views into the index text that it holds.
struct PartTable
{
    std::vector<PartRecord> PartData;
    /// Highest index of `PartData`; -1 for an empty range.
    std::int16_t PartMax = -1;
    /// `PartIndex[k]` maps `PartNum[k]` to the index in `PartData`.
    std::array<KeyedCollection<std::int16_t>, PartNumForms> PartIndex;
    /// `SizeCodeMap[j]` maps the size code of the other naming to the one of naming j.
    std::array<KeyedCollection<std::string_view>, CodeForms> SizeCodeMap;
    /// `TccMap[j]` maps the temperature characteristic of the other naming to the one of naming j.
    std::array<KeyedCollection<std::string_view>, CodeForms> TccMap;

    PartTable() = default;
    PartTable(PartTable&&) = default;
    PartTable& operator=(PartTable&&) = default;
    PartTable(const PartTable&) = delete;
    PartTable& operator=(const PartTable&) = delete;

    /// Text of the index file, which the views point into.
    std::unique_ptr<char[]> indexText;
};

/// The text of an index file, with the name of the file for messages.
struct IndexSource
{
    std::unique_ptr<char[]> Bytes;
    std::size_t Size = 0;
    std::string Name;
};

/// Puts values into the parts of an index, whose names have been read.
using ValueReader = std::function<void(std::span<PartRecord> parts)>;

/// Makes the table of an index and of the values that `readValues` gives its parts. `expectedParts` only
/// tells how many parts to make room for.
///
/// Throws RunTimeError with file, record and field: 62 for an index that ends within a record or a quote, 6
/// for more than 32,767 parts, 457 for a part number that stands twice in one form ("parts.idx: record 17:
/// PartNum(0) "ABC"", records counted from 1), and whatever `readValues` throws. The first two come before
/// the values are read.
PartTable MakePartTable(IndexSource index, std::size_t expectedParts, const ValueReader& readValues);

/// Reads a pair of part files that are in memory; as `MakePartTable`. Parts beyond the last whole record of
/// the data keep zeros as `Data`; surplus records are not read. Throws RunTimeError 6 also for an index that
/// is too large.
PartTable ReadPartPair(std::string_view indexText, std::string_view data, const std::string& indexName);

/// Throws RunTimeError 6 with the file's name for an index larger than any can be.
void CheckIndexSize(std::uintmax_t bytes, const std::string& indexName);

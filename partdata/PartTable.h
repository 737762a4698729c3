#pragma once

/// The part table: every capacitor of the range, and the ways to look one up.

#include "partdata/KeyedCollection.h"
#include "partdata/PartFiles.h"
#include "partdata/PartRecord.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <memory>
#include <string>
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

/// Reads the first index file and the first data file, in alphabetical order, of the program's folder.
///
/// Throws RunTimeError with file, record and field: 53 without an index or data file, 62 for an index
/// that ends within a record or a quote, 6 for more than 32,767 parts or 64 MiB, 457 for a part number that
/// stands twice in one form ("parts.idx: record 17: PartNum(0) "ABC"", records counted from 1), 75 for a
/// file that cannot be read.
PartTable LoadPartData(const std::string& programFolder);

/// Reads one pair of part files; as `LoadPartData`, for named files. Parts beyond the last whole record of
/// the data file keep zeros as `Data`; surplus data records are not read.
PartTable ReadPartPair(const std::filesystem::path& indexFile, const std::filesystem::path& dataFile);

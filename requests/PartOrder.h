#pragma once

/// The order in which lists tell their parts.

#include "requests/CurveRequest.h"

#include <string_view>
#include <vector>

/// What a list is sorted by.
enum class PartColumn
{
    Part,
    Size,
    Characteristic,
    Capacitance,
    RatedVoltage,
};

/// One key of an order, the first of them the weightiest.
struct SortKey
{
    PartColumn Column;
    bool Downwards = false;
};

/// The names of the columns as requests spell them, in the order of `PartColumn`.
std::vector<std::string> SortNames();

/// "size,-capacitance": keys separated by commas, a hyphen before those that go downwards. Throws
/// RequestError that lists the names.
std::vector<SortKey> SortKeysOf(std::string_view typed);

/// Sorts parts of a table: part numbers as shown, sizes and characteristics by their first appearance in the
/// table, numbers by their values. Parts that are equal in all keys stay in table order.
void SortParts(std::vector<const PartRecord*>& found, const PartTable& parts,
               const std::vector<SortKey>& keys, CodeView code, const CurveSettings& settings);

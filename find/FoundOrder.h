#pragma once

/// The order in which found parts are told.

#include "find/PartFinder.h"
#include "partdata/PartTable.h"

#include <vector>

/// One key of an order, the first of them the weightiest.
struct FoundKey
{
    FoundColumn Column;
    bool Downwards = false;
};

/// The order where none is asked for: the least board, then the fewest parts.
std::vector<FoundKey> LeastBoard();

/// Sorts the found parts of a table: parts by their place in it, sizes and characteristics by where it first
/// names them, the others by their values. Empty values stand last either way; what is equal in all keys
/// stays in its order.
void SortFound(std::vector<FoundPart>& found, const PartTable& parts, const std::vector<FoundKey>& keys,
               CodeView code);

#pragma once

/// Pairs of part files that something has gone wrong with, one for every number.

#include <filesystem>

/// Puts the pair of a number into an empty folder: a range, whole, in part or made by hand, after one to four
/// accidents. Now and then it stands there under other names, or beside further files. The same number gives
/// the same files again.
void WriteMutatedPair(unsigned number, const std::filesystem::path& folder);

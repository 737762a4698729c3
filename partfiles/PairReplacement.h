#pragma once

/// Puts a new pair of part files in the place of an old one, so that every reader finds the old pair or the
/// new one, at every moment.

#include "partfiles/PairBytes.h"

#include <filesystem>
#include <functional>

/// Called before each step on the disk; what it throws is a fault of that step.
using BeforeStep = std::function<void()>;

/// Makes the files NAME.idx and NAME.dat of FOLDER/NAME, in the place of those that stand there.
///
/// The new pair is written whole beside the old one, counts for `LoadPartData` and `CheckPair` from one
/// renaming on, and is then moved to the two names (see `StagedPair`). Whoever is killed on the way leaves
/// the old pair or the new one; what he left is cleared, or brought to its end, by the next who writes into
/// the folder. There is one writer at a time; another one waits for it (see `FolderLock`). Links stay links,
/// and rights stay.
///
/// Throws RunTimeError as `WholeFile` and `FolderLock`; the old pair is then as it was, unless the new one
/// counts already.
void ReplacePair(
    const std::filesystem::path& name, const PairBytes& pair, const BeforeStep& beforeStep = [] {});

/// Throws RunTimeError, as `ReplacePair` would, where it could not write: without a folder, or where
/// something stands in the place of a file that must not be replaced.
void RequirePairReplaceable(const std::filesystem::path& name);

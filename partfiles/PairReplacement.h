#pragma once

/// Puts a new pair of part files in the place of an old one, so that there is a good pair at every moment.

#include "files/PartFiles.h"
#include "files/WholeFile.h"
#include "partfiles/PairBytes.h"

#include <filesystem>
#include <functional>

/// Moves a finished file to its target, as `PutInPlace` does.
using Placing =
    std::function<void(const std::filesystem::path& finished, const std::filesystem::path& target)>;

/// Writes both files whole beside their targets and then puts them in place, the index last.
///
/// Whoever reads the pair meanwhile, or finds it after a crash, sees the old pair, the new pair, or the parts
/// that both pairs begin with, with the data of either: never a part with the data of another. After an
/// error the old pair is put back. Throws RunTimeError as `WholeFile`.
void ReplacePair(const PairPaths& target, const PairBytes& pair, const Placing& place = PutInPlace);

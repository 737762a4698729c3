#pragma once

/// Checks a pair of part files against every rule they have to keep.

#include "partfiles/Finding.h"

#include <filesystem>

/// Reads a pair, a folder or an index file, as the program would, but goes on after what the program would
/// end at. Files that cannot be read are findings too; nothing is thrown for them.
PairReport CheckPair(const std::filesystem::path& pair);

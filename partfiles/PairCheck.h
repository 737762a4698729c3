#pragma once

/// Checks a pair of part files against every rule they have to keep.

#include "partfiles/Finding.h"

#include <filesystem>
#include <string>
#include <string_view>

/// Reads a pair, a folder or an index file, as the program would, but goes on after what the program would
/// end at. Files that cannot be read are findings too; nothing is thrown for them.
PairReport CheckPair(const std::filesystem::path& pair);

/// The bytes of a file in memory, with its name for messages.
struct NamedBytes
{
    std::string Name;
    std::string_view Bytes;
};

/// As above, for a pair in memory.
PairReport CheckPair(const NamedBytes& index, const NamedBytes& data);

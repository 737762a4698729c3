#pragma once

/// The bytes of the two part files, as they are written.

#include "partdata/FieldNames.h"

#include <array>
#include <span>
#include <string>
#include <string_view>

/// The bytes of both files.
struct PairBytes
{
    std::string Index;
    std::string Data;
};

/// True when a name can be told in an index file, which knows no way to write a quote within quotes: a name
/// with a quote must do without quotes around it.
bool CanStandInIndex(std::string_view name);

/// The canonical form of an index: a record a line, every name quoted unless a quote stands in it.
/// All names must be able to stand in an index.
std::string IndexText(std::span<const PartNames> parts, std::string_view lineEnd);

/// What ends the lines of a text: CRLF or LF, whichever comes first; LF for a text without any.
std::string_view LineEndOf(std::string_view text);

/// Adds the record of one part to the bytes of a data file.
void AddDataRecord(std::string& bytes, const std::array<float, DataValues>& values);

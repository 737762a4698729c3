#pragma once

/// Writes the bytes of the two part files.

#include "partfiles/Columns.h"

#include <array>
#include <span>
#include <string>
#include <string_view>

/// True when a name can be told in an index file, which knows no way to write a quote within quotes: a name
/// with a quote must do without quotes around it.
bool CanStandInIndex(std::string_view name);

/// The canonical form of an index: a record a line, every name quoted unless a quote stands in it.
/// All names must be able to stand in an index.
std::string IndexText(std::span<const PartNames> parts, std::string_view lineEnd);

/// Adds the record of one part to the bytes of a data file.
void AddDataRecord(std::string& bytes, const std::array<float, DataValues>& values);

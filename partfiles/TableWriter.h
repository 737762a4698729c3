#pragma once

/// Writes parts as a table that people and spreadsheets read.

#include "partdata/PartRecord.h"

#include <span>
#include <string>
#include <string_view>

/// The shortest decimal text that reads back to the very same single; "-0" for a negative zero, and the bits,
/// such as "0x7F800000", of what is not finite.
std::string NumberCell(float value);

/// The parts as comma-separated values in UTF-8: a line of headings, then a line for each part.
std::string TableText(std::span<const PartRecord> parts, std::string_view lineEnd);

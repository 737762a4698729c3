#pragma once

/// Reads a file of what was measured on one part, and tells line by line what is wrong with it.

#include "ownparts/MeasuredPart.h"
#include "ownparts/PartHeader.h"
#include "partfiles/TableReader.h"

#include <cstdint>
#include <string>
#include <vector>

/// Size of the largest file, and the most rows of one.
inline constexpr std::uintmax_t MostMeasurementBytes = std::uintmax_t{16} << 20;
inline constexpr std::size_t MostMeasurementRows = 100'000;

/// A rise above this, in °C, is no heating by an alternating load any more.
inline constexpr double MostRise = 80;

/// A file as it was read. With errors the part is not whole.
struct MeasurementFile
{
    MeasuredPart Part;
    std::vector<TableError> Errors;
};

/// Reads the bytes of a file, in any encoding that `Utf8Of` knows: lines "# name: value" about the part, a
/// line of headings, a row for each measurement. The line of headings decides on the separator of the whole
/// file, a tab, a semicolon or a comma; beside the first two a comma may be the decimal sign.
///
/// After 1,000 errors it is not read on.
MeasurementFile ReadMeasurements(std::string bytes, const JisSizeLookup& jisSizeOf);

#pragma once

/// Reads the coefficients and ratings of parts out of the data file.

#include "partdata/InputFile.h"
#include "partdata/PartRecord.h"

#include <cstddef>
#include <span>

/// Bytes of one record of the data file: 66 little-endian single-precision values, without header.
inline constexpr std::size_t DataRecordBytes = DataValues * sizeof(float);

/// Reads one record per part, from the start of the file into the parts' `Data`. Parts beyond the last
/// whole record keep their values; surplus records are not read.
void ReadPartValues(InputFile& file, std::span<PartRecord> parts);

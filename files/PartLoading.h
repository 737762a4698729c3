#pragma once

/// Loads part files into a part table.

#include "files/PairReading.h"
#include "partdata/PartTable.h"

#include <filesystem>
#include <string>

/// Reads the first index file and the first data file, in alphabetical order, of the program's folder.
///
/// Both are of one state, the old or the new one, while somebody else is replacing them.
///
/// Throws RunTimeError with file, record and field: 53 without an index or data file, 6 also for an index of
/// more than 64 MiB, 75 for a file that cannot be read or a pair that is replaced all the time, 7 without
/// memory for it; else as `MakePartTable`.
PartTable LoadPartData(const std::string& programFolder);

/// Reads one pair of part files; as `LoadPartData`, for named files. Parts beyond the last whole record of
/// the data file keep zeros as `Data`; surplus data records are not read.
PartTable ReadPartPair(const std::filesystem::path& indexFile, const std::filesystem::path& dataFile);

/// As above, within an attempt to read a pair whole.
PartTable ReadPartPair(PairReading& pair);

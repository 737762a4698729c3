#pragma once

/// The rules of the index file: fields, quotes, line ends, and names that must be unique or pair up.

#include "partdata/PartRecord.h"
#include "partfiles/Finding.h"

#include <string>
#include <string_view>
#include <vector>

/// Reads the records of an index text as the program does, as far as it can be read, and adds what is wrong
/// with it to `findings`. The records' names are views into the text; their `Data` is zero. No more records
/// than the program can load are returned and judged; the finding of too many tells how many there are.
std::vector<PartRecord> CheckIndex(std::string_view text, const std::string& file,
                                   std::vector<Finding>& findings);

#pragma once

/// What the lines above a measurement file's table make of a part.

#include "ownparts/FileHeader.h"
#include "ownparts/MeasuredPart.h"
#include "partfiles/TableReader.h"

#include <functional>

/// The JIS name that parts at hand give a size of an EIA name; empty where there is none of that size.
using JisSizeLookup = std::function<std::string(const std::string& eiaSize)>;

/// Names and ratings of the part, with a fault for each line that makes no sense and for each one that is
/// missing. Ratings that are faulty are 0, and a characteristic that is faulty is empty.
MeasuredPart PartOfHeader(const FileHeader& header, bool takesComma, const JisSizeLookup& jisSizeOf,
                          std::vector<TableError>& errors);

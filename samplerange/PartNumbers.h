#pragma once

/// The part numbers of the range.

#include "partdata/PartRecord.h"
#include "samplerange/PartDesign.h"

#include <array>
#include <string>

/// Global EIA, global JIS, previous EIA and previous JIS number of a part.
///
///     0402, Y5V, 50 V, 2200 pF   // "KTU155F51H222ZA01", "KTU155F01H222ZA01",
///                                // "HC0402Y5V222Z050", "HC1005F222Z050"
std::array<std::string, PartNumForms> PartNumbers(const PartDesign& part);

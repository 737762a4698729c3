#pragma once

/// The parts of the range as a list.

#include "calc/Quantities.h"
#include "find/PartFilter.h"
#include "requests/CurveRequest.h"
#include "requests/OutputFormat.h"

#include <span>
#include <vector>

/// "10uF", "1uF..10uF", "1uF.." or "..10uF" in the unit of the form. Throws RequestError for a text that is
/// no number, for a unit that does not fit, for ".." alone and for a range that ends below where it begins.
ValueRange RangeInUnit(std::string_view typed, Quantity quantity);

/// A format of a list: part number, size code, characteristic, capacitance in pF, rated voltage in V, and the
/// chart types that the part has data for; CSV and JSON also all names of the part. UTF-8, lines ended by
/// line feeds.
using PartListFormat = OutputFormat<std::string (*)(const std::vector<const PartRecord*>& parts,
                                                    CodeView code, const CurveSettings& settings)>;

/// All formats, the one that holds where none is named foremost: a table for people, CSV and JSON.
std::span<const PartListFormat> PartListFormats();

#pragma once

/// The parts of the range as a list.

#include "calc/Quantities.h"
#include "requests/CurveRequest.h"
#include "requests/OutputFormat.h"

#include <limits>
#include <span>
#include <vector>

/// Values from the lowest to the highest, both included.
struct ValueRange
{
    float Lowest = -std::numeric_limits<float>::infinity();
    float Highest = std::numeric_limits<float>::infinity();
};

/// "10uF", "1uF..10uF", "1uF.." or "..10uF" in the unit of the form. Throws RequestError for a text that is
/// no number and for a unit that does not fit.
ValueRange RangeInUnit(std::string_view typed, Quantity quantity);

/// What the listed parts must agree with; what is left out agrees with every part. Texts in UTF-8, compared
/// without regard to letter case.
struct PartFilter
{
    /// Stands somewhere in one of the four part numbers.
    std::string Text = {};
    std::optional<std::int16_t> ChartType = {};
    /// In `Code`; in the other code if it stands nowhere there.
    std::optional<std::string> SizeCode = {};
    std::optional<std::string> Tcc = {};
    /// In pF.
    std::optional<ValueRange> Capacitance = {};
    std::optional<ValueRange> RatedVoltage = {};
    CodeView Code = CodeView::Eia;
};

/// The parts that agree, in index-file order. A part without data for any chart type is in no list.
std::vector<const PartRecord*> FilterParts(const PartTable& parts, const PartFilter& filter);

/// A format of a list: part number, size code, characteristic, capacitance in pF, rated voltage in V, and the
/// chart types that the part has data for; CSV and JSON also all names of the part. UTF-8, lines ended by
/// line feeds.
using PartListFormat = OutputFormat<std::string (*)(const std::vector<const PartRecord*>& parts,
                                                    CodeView code, const CurveSettings& settings)>;

/// All formats, the one that holds where none is named foremost: a table for people, CSV and JSON.
std::span<const PartListFormat> PartListFormats();

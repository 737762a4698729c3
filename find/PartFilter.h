#pragma once

/// Which parts of the range are looked at, by what stands in their names and ratings.

#include "find/SizeOrder.h"
#include "partdata/PartTable.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

/// Values from the lowest to the highest, both included.
struct ValueRange
{
    float Lowest = -std::numeric_limits<float>::infinity();
    float Highest = std::numeric_limits<float>::infinity();
};

/// What the parts must agree with; what is left out agrees with every part. Texts in UTF-8, compared without
/// regard to letter case.
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
    /// A part without measures agrees with any.
    std::optional<PartSize> LargestSize = {};
    CodeView Code = CodeView::Eia;
    /// Parts without data for any chart type agree as well.
    bool TakesPartsWithoutData = false;
};

/// The parts that agree, in index-file order.
std::vector<const PartRecord*> FilterParts(const PartTable& parts, const PartFilter& filter);

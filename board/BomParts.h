#pragma once

/// Which part of the range a row of a bill means.

#include "board/BomConditions.h"
#include "board/BomSettings.h"
#include "board/NearNames.h"
#include "board/PartValues.h"
#include "partdata/PartTable.h"

#include <optional>
#include <string>
#include <vector>

struct MeantPart
{
    /// Null for a part that is not in the range.
    const PartRecord* Part = nullptr;
    /// By what the row tells of it rather than by its number.
    bool IsByValue = false;
};

/// Finds parts by their numbers in any form, and where that is asked for by their values. The bill, the parts
/// and the settings must outlive it.
class BomParts
{
public:
    /// Without a bill no values are looked at.
    BomParts(const BomTable* bill, const PartTable& parts, const BomSettings& settings);

    MeantPart PartOf(const BomItem& item) const;
    /// At most three part numbers of the same prefix that differ in two letters, the nearest first.
    const std::vector<std::string>& NearOf(const std::string& name);

private:
    const PartRecord* NumberedPart(const BomItem& item) const;
    const PartRecord* ValuedPart(const BomItem& item) const;
    std::vector<std::string> NumbersShown() const;

    const BomTable* bill;
    const PartTable& parts;
    const BomSettings& settings;
    PartWords words;
    /// Made for the first part that is not in the range.
    std::optional<NearNames> near;
};

#include "board/BomParts.h"

#include "partdata/Windows1252.h"

#include <algorithm>

BomParts::BomParts(const BomTable* billTable, const PartTable& partTable, const BomSettings& bomSettings)
    : bill(billTable)
    , parts(partTable)
    , settings(bomSettings)
    , words(partTable, bomSettings.View)
{
}

MeantPart BomParts::PartOf(const BomItem& item) const
{
    if (const auto* numbered = NumberedPart(item))
    {
        return {.Part = numbered};
    }
    const auto* valued = settings.IsByValue && bill != nullptr ? ValuedPart(item) : nullptr;
    return {.Part = valued, .IsByValue = valued != nullptr};
}

const PartRecord* BomParts::NumberedPart(const BomItem& item) const
{
    const auto key = Windows1252FromUtf8(item.TextOf(BomField::Part));
    const auto first = static_cast<std::size_t>(settings.View) + settings.NumberingOffset;
    for (std::size_t i = 0; i < PartNumForms && !key.empty(); ++i)
    {
        const auto* found = parts.PartIndex[(first + i) % PartNumForms].Find(key);
        if (found != nullptr)
        {
            return &parts.PartData[static_cast<std::size_t>(*found)];
        }
    }
    return nullptr;
}

/// By all cells but those that are conditions, references or counts.
const PartRecord* BomParts::ValuedPart(const BomItem& item) const
{
    const auto& cells = bill->Rows.at(item.Row).Cells;
    PartValues values;
    for (std::size_t i = 0; i < cells.size(); ++i)
    {
        const auto column = std::ranges::find(bill->Columns, std::optional(i));
        const auto field = static_cast<BomField>(column - bill->Columns.begin());
        const bool isOther =
            column != bill->Columns.end() && field != BomField::Part && field != BomField::Value;
        if (!isOther)
        {
            words.Read(cells[i], values);
        }
    }
    return PartOfValues(values, parts, settings.View);
}

const std::vector<std::string>& BomParts::NearOf(const std::string& name)
{
    if (!near)
    {
        near.emplace(NumbersShown());
    }
    return near->Of(name);
}

std::vector<std::string> BomParts::NumbersShown() const
{
    const auto form = static_cast<std::size_t>(settings.View) + settings.NumberingOffset;
    std::vector<std::string> numbers;
    numbers.reserve(parts.PartData.size());
    std::ranges::transform(parts.PartData, std::back_inserter(numbers),
                           [form](const PartRecord& part)
                           { return Utf8FromWindows1252(part.PartNum[form]); });
    return numbers;
}

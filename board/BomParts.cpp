#include "board/BomParts.h"

#include "partdata/Windows1252.h"

#include <algorithm>
#include <numeric>
#include <utility>

/// Letters to change, add or drop from one name to another.
static std::size_t StepsTo(const std::string& name, std::string_view other)
{
    std::vector<std::size_t> row(other.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < name.size(); ++i)
    {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < other.size(); ++j)
        {
            const auto changed = diagonal + (name[i] == other[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

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

std::vector<std::string> BomParts::NearOf(const std::string& name) const
{
    constexpr std::size_t most = 3;
    constexpr std::size_t mostSteps = 2;
    constexpr std::size_t prefix = 3;
    const auto form = static_cast<std::size_t>(settings.View) + settings.NumberingOffset;
    std::vector<std::pair<std::size_t, std::string>> near;
    for (const PartRecord& part : parts.PartData)
    {
        const auto number = Utf8FromWindows1252(part.PartNum[form]);
        const auto longer = std::max(number.size(), name.size()) - std::min(number.size(), name.size());
        const bool isLike = longer <= mostSteps && number.starts_with(name.substr(0, prefix));
        const auto steps = isLike ? StepsTo(name, number) : mostSteps + 1;
        if (steps <= mostSteps)
        {
            near.emplace_back(steps, number);
        }
    }
    std::ranges::stable_sort(near, {}, &std::pair<std::size_t, std::string>::first);
    near.resize(std::min(near.size(), most));
    std::vector<std::string> names;
    std::ranges::transform(near, std::back_inserter(names), &std::pair<std::size_t, std::string>::second);
    return names;
}

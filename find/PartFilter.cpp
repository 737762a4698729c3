#include "find/PartFilter.h"

#include "calc/ChartKinds.h"
#include "partdata/KeyedCollection.h"
#include "partdata/Windows1252.h"

#include <algorithm>
#include <array>

namespace
{
/// A text in UTF-8 as the keys of the part files are compared.
std::string Folded(std::string_view utf8)
{
    return FoldedKey(Windows1252FromUtf8(utf8));
}

bool Holds(std::string_view partNum, const std::string& foldedText)
{
    const auto isSame = [](char held, char folded) { return FoldCase(held) == folded; };
    return std::search(partNum.begin(), partNum.end(), foldedText.begin(), foldedText.end(), isSame) !=
           partNum.end();
}

bool IsNamed(const PartRecord& part, const std::string& foldedText)
{
    return foldedText.empty() ||
           std::ranges::any_of(part.PartNum, [&](auto number) { return Holds(number, foldedText); });
}

/// The names of a part in either code.
using CodeNames = std::array<std::string_view, CodeForms> PartRecord::*;

/// A size or characteristic that is looked for.
struct WantedName
{
    CodeNames Names;
    std::string Folded;
    std::size_t Code;

    bool IsOf(const PartRecord& part) const { return EqualKeys((part.*Names)[Code], Folded); }
};

/// Looked up in the code in force, and in the other one only if it stands nowhere there.
std::optional<WantedName> WantedIn(const PartTable& parts, CodeNames names,
                                   const std::optional<std::string>& typed, CodeView code)
{
    if (!typed)
    {
        return std::nullopt;
    }
    WantedName wanted{names, Folded(*typed), static_cast<std::size_t>(code)};
    const bool isThere =
        std::ranges::any_of(parts.PartData, [&](const PartRecord& part) { return wanted.IsOf(part); });
    wanted.Code = isThere ? wanted.Code : CodeForms - 1 - wanted.Code;
    return wanted;
}

bool Agrees(const std::optional<ValueRange>& range, float value)
{
    return !range || (value >= range->Lowest && value <= range->Highest);
}

bool IsWithin(const std::optional<PartSize>& largest, const PartRecord& part)
{
    const auto size = largest ? SizeOf(part) : std::nullopt;
    return !size || size->IsWithin(*largest);
}

bool IsOffered(const PartRecord& part, const PartFilter& filter)
{
    if (filter.ChartType)
    {
        return IsAvailable(part, *filter.ChartType);
    }
    return filter.TakesPartsWithoutData || std::ranges::any_of(ChartKinds(), [&](const ChartKind& kind)
                                                               { return IsAvailable(part, NumberOf(kind)); });
}
} // namespace

std::vector<const PartRecord*> FilterParts(const PartTable& parts, const PartFilter& filter)
{
    const auto text = Folded(filter.Text);
    const auto size = WantedIn(parts, &PartRecord::SizeCode, filter.SizeCode, filter.Code);
    const auto tcc = WantedIn(parts, &PartRecord::Tcc, filter.Tcc, filter.Code);
    const auto agrees = [&](const PartRecord& part)
    {
        return IsOffered(part, filter) && (!size || size->IsOf(part)) && (!tcc || tcc->IsOf(part)) &&
               Agrees(filter.Capacitance, part.Data[Value::Capacitance]) &&
               Agrees(filter.RatedVoltage, part.Data[Value::RatedVoltage]) &&
               IsWithin(filter.LargestSize, part) && IsNamed(part, text);
    };
    std::vector<const PartRecord*> found;
    for (const PartRecord& part : parts.PartData)
    {
        if (agrees(part))
        {
            found.push_back(&part);
        }
    }
    return found;
}

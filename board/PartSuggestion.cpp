#include "board/PartSuggestion.h"

#include "find/PartFinder.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace
{
/// Same size, smaller, larger; then what else the part should be like.
using LikenessKey = std::tuple<int, double, bool, float>;

LikenessKey KeyOf(const PartRecord& part, const PartRecord& failing)
{
    const auto size = SizeOf(part);
    const auto own = SizeOf(failing);
    const int sizeOrder = size == own ? 0 : (own && size->IsWithin(*own) ? 1 : 2);
    const double nominal = std::abs(std::log(double{part.Data[Value::NominalCapacitance]} /
                                             double{failing.Data[Value::NominalCapacitance]}));
    return {sizeOrder, nominal, part.Tcc[0] != failing.Tcc[0], part.Data[Value::RatedVoltage]};
}

std::vector<const PartRecord*> CandidatesFor(const PartRecord& failing, const PartTable& parts,
                                             const BomSettings& settings)
{
    const auto own = SizeOf(failing);
    std::vector<const PartRecord*> candidates;
    for (const PartRecord& part : parts.PartData)
    {
        const auto size = SizeOf(part);
        const bool isSmall = size && own && size->IsWithin(*own);
        const bool isAllowed = size && settings.LargestSize && size->IsWithin(*settings.LargestSize);
        if ((isSmall || isAllowed) && part.Data[Value::NominalCapacitance] > 0)
        {
            candidates.push_back(&part);
        }
    }
    return candidates;
}

/// The first, in order, of what the search finds that holds the limits with the reserve.
std::optional<BomSuggestion> FirstPassing(std::vector<const PartRecord*> candidates,
                                          const PartRecord& failing, const BomQuestion& question,
                                          float reserve)
{
    auto found = FindParts(candidates, question.Asked).Parts;
    std::ranges::stable_sort(found, {}, [&](const FoundPart& row) { return KeyOf(row.Part(), failing); });
    for (const FoundPart& row : found)
    {
        const auto judged = JudgePart(row.Part(), question, nullptr);
        const auto* deciding = judged.Deciding();
        if (deciding != nullptr && !judged.IsFailing() && judged.Unknown.empty() &&
            deciding->Reserve >= reserve)
        {
            return BomSuggestion{.Part = &row.Part(),
                                 .Count = question.Parallel(),
                                 .Least = judged.Figures.ValueOf(FoundColumn::EffectiveCapacitance),
                                 .Reserve = deciding->Reserve};
        }
    }
    return std::nullopt;
}
} // namespace

std::optional<BomSuggestion> SuggestionFor(const PartRecord& failing, const BomQuestion& question,
                                           const PartTable& parts, const BomSettings& settings)
{
    constexpr int mostParallel = 4;
    const auto candidates = CandidatesFor(failing, parts, settings);
    for (int count = question.Parallel(); count <= std::max(mostParallel, question.Parallel()); ++count)
    {
        auto asked = question;
        asked.Asked.Wanted.Parallel = Bank{.Count = count};
        if (const auto passing = FirstPassing(candidates, failing, asked, settings.WarnPercent))
        {
            return passing;
        }
    }
    return std::nullopt;
}

#include "board/NearNames.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <string_view>
#include <utility>

namespace
{
constexpr std::size_t mostNames = 3;
constexpr std::size_t prefixLetters = 3;
constexpr std::size_t mostSteps = 2;
constexpr std::size_t tooFar = mostSteps + 1;

/// Steps from the first letters of a listed name, as many as the row's depth, to the first letters of the
/// name that is asked for: the cell i is about `depth + i - mostSteps` of these. Farther from the diagonal
/// more letters than allowed are added or dropped.
using Row = std::array<std::size_t, 2 * mostSteps + 1>;

bool IsTooFar(const Row& row)
{
    return std::ranges::all_of(row, [](std::size_t steps) { return steps >= tooFar; });
}

/// The rows of one listed name. What the next one begins with in the same way is not gone through again.
class RowsOfName
{
public:
    explicit RowsOfName(const std::string& askedFor)
        : name(askedFor)
    {
        Row& first = rows.emplace_back();
        for (std::size_t i = 0; i < first.size(); ++i)
        {
            first[i] = i >= mostSteps && i - mostSteps <= name.size() ? i - mostSteps : tooFar;
        }
    }

    /// Forgets all but the rows of the first letters.
    void KeepLetters(std::size_t letters) { rows.resize(std::min(rows.size(), letters + 1)); }

    std::size_t Letters() const { return rows.size() - 1; }

    bool IsLost() const { return IsTooFar(rows.back()); }

    void Add(char letter)
    {
        const Row& above = rows.back();
        const auto depth = rows.size();
        Row row{};
        for (std::size_t i = 0; i < row.size(); ++i)
        {
            row[i] = Cell(above, i > 0 ? row[i - 1] : tooFar, i, depth + i, letter);
        }
        rows.push_back(row);
    }

    /// From the listed name to the whole of the other.
    std::size_t Steps() const
    {
        const auto cell = name.size() + mostSteps - std::min(Letters(), name.size() + mostSteps);
        return cell < rows.back().size() ? rows.back()[cell] : tooFar;
    }

private:
    std::size_t Cell(const Row& above, std::size_t before, std::size_t i, std::size_t place,
                     char letter) const
    {
        if (place < mostSteps || place - mostSteps > name.size())
        {
            return tooFar;
        }
        const auto letters = place - mostSteps;
        const auto changed = letters > 0 ? above[i] + (name[letters - 1] == letter ? 0 : 1) : tooFar;
        const auto dropped = i + 1 < above.size() ? above[i + 1] + 1 : tooFar;
        return std::min({changed, dropped, before + 1, tooFar});
    }

    const std::string& name;
    std::vector<Row> rows;
};
} // namespace

static std::size_t SharedLetters(std::string_view name, std::string_view other)
{
    const auto ends = std::ranges::mismatch(name, other);
    return static_cast<std::size_t>(ends.in1 - name.begin());
}

NearNames::NearNames(std::vector<std::string> names)
    : list(std::move(names))
    , sorted(list.size())
    , shared(list.size())
{
    std::iota(sorted.begin(), sorted.end(), std::size_t{0});
    std::ranges::sort(sorted, {}, [this](std::size_t name) { return std::string_view(list[name]); });
    for (std::size_t i = 1; i < sorted.size(); ++i)
    {
        shared[i] = SharedLetters(list[sorted[i - 1]], list[sorted[i]]);
    }
}

std::vector<NearNames::Near> NearNames::Search(const std::string& name)
{
    std::vector<Near> near;
    RowsOfName rows(name);
    for (std::size_t i = 0; i < sorted.size(); ++i)
    {
        const auto& listed = list[sorted[i]];
        rows.KeepLetters(shared[i]);
        while (!rows.IsLost() && rows.Letters() < listed.size())
        {
            rows.Add(listed[rows.Letters()]);
            ++lettersRead;
        }
        const bool isAlike = !rows.IsLost() && listed.starts_with(name.substr(0, prefixLetters));
        if (isAlike && rows.Steps() <= mostSteps)
        {
            near.push_back({rows.Steps(), sorted[i]});
        }
    }
    return near;
}

const std::vector<std::string>& NearNames::Of(const std::string& name)
{
    const auto [answer, isNew] = answers.try_emplace(name);
    if (isNew)
    {
        auto near = Search(name);
        std::ranges::sort(near, {}, [](const Near& one) { return std::pair(one.Steps, one.Name); });
        near.resize(std::min(near.size(), mostNames));
        std::ranges::transform(near, std::back_inserter(answer->second),
                               [this](const Near& one) { return list[one.Name]; });
    }
    return answer->second;
}

#include "requests/Names.h"

#include "partdata/KeyedCollection.h"
#include "requests/RequestError.h"

#include <algorithm>
#include <iterator>
#include <numeric>

std::string RequestNameOf(std::string_view name)
{
    std::string text(name);
    std::ranges::transform(text, text.begin(), [](char c) { return c == ' ' ? '-' : LowerCase(c); });
    return text;
}

std::string ChoiceOf(const std::vector<std::string>& names, std::string_view lastWord)
{
    const auto most = std::span(names).first(names.size() - std::min<std::size_t>(names.size(), 1));
    const auto joined = most.empty() ? "" : ' ' + std::string(lastWord) + ' ';
    return ListOf(most) + joined + (names.empty() ? "" : names.back());
}

/// True for names that differ in letter case, or in a hyphen for a blank.
static bool IsSameName(std::string_view a, std::string_view b)
{
    const auto folded = [](char c) { return c == '-' ? ' ' : FoldCase(c); };
    return std::ranges::equal(a, b, {}, folded, folded);
}

/// The letters and digits of a name, upper case.
static std::string Letters(std::string_view name)
{
    std::string letters;
    std::ranges::copy_if(name, std::back_inserter(letters),
                         [](char c) { return c != '-' && c != '_' && c != ' '; });
    std::ranges::transform(letters, letters.begin(), FoldCase);
    return letters;
}

/// Letters to add, drop, change or swap with their neighbour on the way from one text to the other; `most`
/// where it takes as many or more.
static std::size_t StepsBetween(std::string_view a, std::string_view b, std::size_t most)
{
    const auto begins = std::ranges::mismatch(a, b);
    a.remove_prefix(static_cast<std::size_t>(begins.in1 - a.begin()));
    b.remove_prefix(static_cast<std::size_t>(begins.in2 - b.begin()));
    std::vector<std::size_t> beforeLast(b.size() + 1);
    std::vector<std::size_t> last(b.size() + 1);
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (std::size_t i = 1; i <= a.size(); ++i)
    {
        beforeLast.swap(last);
        last.swap(row);
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j)
        {
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1)});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
            {
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
            }
        }
        // A swap may reach back one row, and costs one step.
        if (std::min(std::ranges::min(row), std::ranges::min(last) + 1) >= most)
        {
            return most;
        }
    }
    return row[b.size()];
}

std::optional<std::string> NameMeantBy(std::string_view typed, const std::vector<std::string>& known)
{
    constexpr std::size_t mostSteps = 3;
    const auto letters = Letters(typed);
    std::size_t fewest = std::min(letters.size() / 3, mostSteps) + 1;
    std::optional<std::string> meant;
    for (const std::string& name : known)
    {
        const auto other = Letters(name);
        const auto longer = std::max(other.size(), letters.size()) - std::min(other.size(), letters.size());
        const auto steps = longer < fewest ? StepsBetween(letters, other, fewest) : fewest;
        if (steps < fewest)
        {
            fewest = steps;
            meant = name;
        }
    }
    return meant;
}

std::size_t IndexOfName(std::string_view name, std::span<const std::string_view> names, std::string_view what,
                        std::string_view key)
{
    const auto found = std::ranges::find_if(names, [&](auto known) { return IsSameName(known, name); });
    if (found == names.end())
    {
        throw RequestError(RequestErrorKind::UnknownValue, std::string(key),
                           std::string(what) + " \"" + std::string(name) + "\" is none of: " + ListOf(names))
            .Meaning(NameMeantBy(name, {names.begin(), names.end()}));
    }
    return static_cast<std::size_t>(found - names.begin());
}

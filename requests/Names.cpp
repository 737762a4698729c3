#include "requests/Names.h"

#include "partdata/KeyedCollection.h"
#include "requests/RequestError.h"

#include <algorithm>

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

std::size_t IndexOfName(std::string_view name, std::span<const std::string_view> names, std::string_view what,
                        std::string_view key)
{
    const auto found = std::ranges::find_if(names, [&](auto known) { return IsSameName(known, name); });
    if (found == names.end())
    {
        throw RequestError(RequestErrorKind::UnknownValue, std::string(key),
                           std::string(what) + " \"" + std::string(name) + "\" is none of: " + ListOf(names));
    }
    return static_cast<std::size_t>(found - names.begin());
}

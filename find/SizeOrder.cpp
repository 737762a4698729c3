#include "find/SizeOrder.h"

#include "partdata/KeyedCollection.h"
#include "partdata/Windows1252.h"

#include <algorithm>
#include <array>
#include <map>
#include <tuple>

bool PartSize::IsWithin(const PartSize& largest) const
{
    return std::max(Length, Width) <= std::max(largest.Length, largest.Width) &&
           std::min(Length, Width) <= std::min(largest.Length, largest.Width);
}

std::optional<PartSize> SizeOf(std::string_view jisCode)
{
    constexpr std::size_t digits = 4;
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (jisCode.size() != digits || !std::ranges::all_of(jisCode, isDigit))
    {
        return std::nullopt;
    }
    const auto two = [&](std::size_t at) { return 10 * (jisCode[at] - '0') + (jisCode[at + 1] - '0'); };
    return PartSize{.Length = two(0), .Width = two(2)};
}

std::optional<PartSize> SizeNamed(const PartTable& parts, std::string_view name, CodeView code)
{
    const auto wanted = Windows1252FromUtf8(name);
    const auto first = static_cast<std::size_t>(code);
    for (const std::size_t naming : {first, CodeForms - 1 - first})
    {
        for (const PartRecord& part : parts.PartData)
        {
            const auto size = EqualKeys(part.SizeCode[naming], wanted) ? SizeOf(part) : std::nullopt;
            if (size)
            {
                return size;
            }
        }
    }
    return std::nullopt;
}

std::vector<std::string_view> SizeNames(const PartTable& parts, CodeView code)
{
    // Longer side, shorter side, then the name of those that are equal in both.
    using Place = std::tuple<int, int, std::string_view>;
    std::map<Place, std::string_view> places;
    for (const PartRecord& part : parts.PartData)
    {
        if (const auto size = SizeOf(part))
        {
            const auto name = part.SizeCode[static_cast<std::size_t>(code)];
            places.emplace(
                Place{std::max(size->Length, size->Width), std::min(size->Length, size->Width), name}, name);
        }
    }
    std::vector<std::string_view> names;
    names.reserve(places.size());
    for (const auto& [place, name] : places)
    {
        names.push_back(name);
    }
    return names;
}

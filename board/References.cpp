#include "board/References.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>

namespace
{
/// "C12": what stands before the number, and the number.
struct Numbered
{
    std::string_view Prefix;
    int Number = 0;
};

std::optional<Numbered> NumberedOf(std::string_view name)
{
    const auto last = name.find_last_not_of("0123456789");
    const auto length = last == std::string_view::npos ? 0 : last + 1;
    Numbered numbered{.Prefix = name.substr(0, length)};
    const char* const end = name.data() + name.size();
    const auto read = std::from_chars(name.data() + length, end, numbered.Number);
    const bool isNumber = read.ec == std::errc() && length < name.size();
    return isNumber ? std::optional(numbered) : std::nullopt;
}

/// Adds "C5" to "C8" of "C5-C8" and "C5-8"; false for what is no such range.
bool AddRange(std::vector<std::string>& references, std::string_view name, std::string_view sign)
{
    const auto place = name.find(sign);
    if (place == std::string_view::npos)
    {
        return false;
    }
    const auto first = NumberedOf(name.substr(0, place));
    const auto last = NumberedOf(name.substr(place + sign.size()));
    if (!first || !last || first->Prefix.empty() || (!last->Prefix.empty() && last->Prefix != first->Prefix))
    {
        return false;
    }
    const int rises = last->Number - first->Number;
    for (int i = 0; rises >= 1 && rises <= MostInReferenceRange && i <= rises; ++i)
    {
        references.push_back(std::string(first->Prefix) + std::to_string(first->Number + i));
    }
    return rises >= 1 && rises <= MostInReferenceRange;
}

void AddReference(std::vector<std::string>& references, std::string_view name)
{
    const std::array<std::string_view, 2> signs = {"..", "-"};
    const auto isRange = [&](std::string_view sign) { return AddRange(references, name, sign); };
    if (std::ranges::none_of(signs, isRange))
    {
        references.emplace_back(name);
    }
}
} // namespace

std::vector<std::string> ReferencesIn(std::string_view list)
{
    constexpr std::string_view separators = " \t\r\n,;";
    std::vector<std::string> references;
    for (auto from = list.find_first_not_of(separators);
         from != std::string_view::npos && references.size() <= MostReferences;
         from = list.find_first_not_of(separators, from))
    {
        const auto end = std::min(list.find_first_of(separators, from), list.size());
        AddReference(references, list.substr(from, end - from));
        from = end;
    }
    return references;
}

bool IsCapacitorReference(std::string_view reference)
{
    const auto numbered = NumberedOf(reference);
    return numbered && (numbered->Prefix == "C" || numbered->Prefix == "c");
}

std::string ReferenceText(const std::vector<std::string>& references)
{
    constexpr std::size_t shortest = 4;
    std::string text;
    for (std::size_t from = 0, to = 0; from < references.size(); from = to)
    {
        const auto first = NumberedOf(references[from]);
        for (to = from + 1; first && to < references.size(); ++to)
        {
            const auto number = std::int64_t{first->Number} + static_cast<std::int64_t>(to - from);
            if (references[to] != std::string(first->Prefix) + std::to_string(number))
            {
                break;
            }
        }
        to = to - from >= shortest ? to : from + 1;
        text += (text.empty() ? "" : ",") + references[from];
        text += to - from > 1 ? "-" + references[to - 1] : "";
    }
    return text;
}

#include "partfiles/PairBytes.h"

#include <bit>
#include <cstdint>

static bool IsBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool CanStandInIndex(std::string_view name)
{
    const bool needsQuotes = name.empty() || name.front() == '"' || IsBlank(name.front()) ||
                             IsBlank(name.back()) || name.find_first_of(",\r\n") != std::string_view::npos;
    return name.find('"') == std::string_view::npos || !needsQuotes;
}

std::string IndexText(std::span<const PartNames> parts, std::string_view lineEnd)
{
    std::string text;
    for (const auto& names : parts)
    {
        for (std::size_t i = 0; i < names.size(); ++i)
        {
            const std::string_view quote = names[i].find('"') == std::string_view::npos ? "\"" : "";
            text += i == 0 ? "" : ",";
            text += quote;
            text += names[i];
            text += quote;
        }
        text += lineEnd;
    }
    return text;
}

std::string_view LineEndOf(std::string_view text)
{
    const auto first = text.find_first_of("\r\n");
    return first != std::string_view::npos && text.substr(first, 2) == "\r\n" ? "\r\n" : "\n";
}

void AddDataRecord(std::string& bytes, const std::array<float, DataValues>& values)
{
    for (const float value : values)
    {
        const auto bits = std::bit_cast<std::uint32_t>(value);
        for (int shift = 0; shift < 32; shift += 8)
        {
            bytes += static_cast<char>((bits >> shift) & 0xFFU);
        }
    }
}

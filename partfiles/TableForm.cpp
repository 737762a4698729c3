#include "partfiles/TableForm.h"

#include <algorithm>
#include <cstdint>

namespace
{
constexpr const char* Advice = "; save the table as comma-separated values in UTF-8";

bool IsUtf16(std::string_view firstLine)
{
    // The zero halves of its letters tell a text without a mark.
    return firstLine.starts_with("\xFF\xFE") || firstLine.starts_with("\xFE\xFF") ||
           firstLine.find('\0') != std::string_view::npos;
}

/// Bytes of the character that begins with this one; 0 for a byte that begins none.
std::size_t LengthOf(unsigned char lead)
{
    if (lead < 0x80)
    {
        return 1;
    }
    if (lead < 0xC2 || lead > 0xF4)
    {
        return 0;
    }
    return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

/// Where the text stops being UTF-8; its size where it never does.
std::size_t EndOfUtf8(std::string_view text)
{
    std::size_t at = 0;
    while (at < text.size())
    {
        const auto length = LengthOf(static_cast<unsigned char>(text[at]));
        const auto rest = text.substr(at, length);
        const bool isWhole = length != 0 && rest.size() == length &&
                             std::ranges::all_of(rest.substr(1), [](char c)
                                                 { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80; });
        if (!isWhole)
        {
            return at;
        }
        at += length;
    }
    return at;
}

std::size_t LineAt(std::string_view text, std::size_t offset)
{
    return 1 + static_cast<std::size_t>(std::ranges::count(text.substr(0, offset), '\n'));
}
} // namespace

std::optional<FormFault> FaultOfForm(std::string_view text)
{
    const auto firstLine = text.substr(0, text.find_first_of("\r\n"));
    if (IsUtf16(firstLine))
    {
        return FormFault{1, std::string("the table is in UTF-16") + Advice};
    }
    const bool hasComma = firstLine.find(',') != std::string_view::npos;
    for (const auto& [separator, name] : {std::pair(';', "semicolons stand"), std::pair('\t', "tabs stand")})
    {
        if (!hasComma && firstLine.find(separator) != std::string_view::npos)
        {
            return FormFault{1, std::string(name) + " between the cells" + Advice};
        }
    }
    if (const auto end = EndOfUtf8(text); end != text.size())
    {
        return FormFault{LineAt(text, end),
                         std::string("a character is not in UTF-8, perhaps in Windows-1252") + Advice};
    }
    return std::nullopt;
}

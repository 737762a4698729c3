#include "partfiles/TableForm.h"

#include "separatedtext/Encoding.h"

#include <algorithm>

namespace
{
constexpr const char* Advice = "; save the table as comma-separated values in UTF-8";

bool IsUtf16(std::string_view firstLine)
{
    // The zero halves of its letters tell a text without a mark.
    return HasUtf16Mark(firstLine) || firstLine.find('\0') != std::string_view::npos;
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

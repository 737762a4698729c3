#include "partdata/Windows1252.h"

#include "partdata/Utf8.h"

#include <algorithm>
#include <array>

/// Code points of the characters 0x80 to 0x9F, where the code page departs from Latin-1. The five
/// characters that the code page leaves open are control characters of the same code.
static constexpr std::array<char16_t, 32> HighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

static char16_t CodePointOf(unsigned char c)
{
    return c >= 0x80 && c <= 0x9F ? HighControls[c - 0x80U] : static_cast<char16_t>(c);
}

std::string Utf8FromWindows1252(std::string_view text)
{
    std::string utf8;
    utf8.reserve(text.size());
    for (const char c : text)
    {
        AppendUtf8(utf8, CodePointOf(static_cast<unsigned char>(c)));
    }
    return utf8;
}

/// Takes the next code point off a UTF-8 text; a malformed byte reads as one that no code page holds.
static char32_t TakeCodePoint(std::string_view& text)
{
    constexpr char32_t Malformed = 0xFFFF;
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = Utf8Length(text.front());
    if (length == 0 || length > text.size())
    {
        text.remove_prefix(1);
        return Malformed;
    }
    char32_t code = length == 1 ? lead : lead & (0x7FU >> length);
    for (const char c : text.substr(1, length - 1))
    {
        if (!ContinuesUtf8(c))
        {
            text.remove_prefix(1);
            return Malformed;
        }
        code = (code << 6) | (static_cast<unsigned char>(c) & 0x3FU);
    }
    text.remove_prefix(length);
    // A character has one form only, the shortest.
    constexpr std::array<char32_t, 5> least = {0, 0, 0x80, 0x800, 0x10000};
    return code < least[length] ? Malformed : code;
}

std::string Windows1252FromUtf8(std::string_view text)
{
    std::string ansi;
    ansi.reserve(text.size());
    while (!text.empty())
    {
        const char32_t code = TakeCodePoint(text);
        const auto high = std::find(HighControls.begin(), HighControls.end(), code);
        if (high != HighControls.end())
        {
            ansi += static_cast<char>(0x80 + (high - HighControls.begin()));
        }
        else
        {
            ansi += code <= 0xFF && (code < 0x80 || code > 0x9F) ? static_cast<char>(code) : '?';
        }
    }
    return ansi;
}

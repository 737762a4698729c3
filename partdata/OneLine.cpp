#include "partdata/OneLine.h"

static constexpr std::size_t LongestLine = 80;

static bool IsBetween(char c, unsigned first, unsigned last)
{
    const auto code = static_cast<unsigned char>(c);
    return first <= code && code <= last;
}

/// Bytes of the UTF-8 character that a text begins with; 1 for a byte that begins none.
static std::size_t BytesOfFirst(std::string_view text)
{
    const char lead = text.front();
    const std::size_t length = IsBetween(lead, 0xC2, 0xDF)   ? 2
                               : IsBetween(lead, 0xE0, 0xEF) ? 3
                               : IsBetween(lead, 0xF0, 0xF4) ? 4
                                                             : 1;
    for (std::size_t i = 1; i < length; ++i)
    {
        if (i == text.size() || !IsBetween(text[i], 0x80, 0xBF))
        {
            return 1;
        }
    }
    return length;
}

/// A control character, in one byte or in the two that UTF-8 has for the codes 0x80 to 0x9F.
static bool IsControl(std::string_view character)
{
    const char c = character.back();
    return character.size() == 1 ? IsBetween(c, 0, 0x1F) || IsBetween(c, 0x7F, 0x9F)
                                 : character.size() == 2 && IsBetween(character.front(), 0xC2, 0xC2) &&
                                       IsBetween(c, 0x80, 0x9F);
}

static std::string HexOf(char c)
{
    constexpr std::string_view Digits = "0123456789ABCDEF";
    const auto code = static_cast<unsigned char>(c);
    return {'\\', 'x', Digits[code >> 4], Digits[code & 0x0FU]};
}

/// Takes the first character off a text, as it is shown.
static std::string TakeCharacter(std::string_view& text)
{
    const auto character = text.substr(0, BytesOfFirst(text));
    text.remove_prefix(character.size());
    return IsControl(character) ? HexOf(character.back()) : std::string(character);
}

std::string WithoutControls(std::string_view text)
{
    std::string line;
    while (!text.empty())
    {
        line += TakeCharacter(text);
    }
    return line;
}

std::string OneLine(std::string_view text)
{
    std::string line;
    while (!text.empty())
    {
        if (line.size() >= LongestLine)
        {
            return line + "...";
        }
        line += TakeCharacter(text);
    }
    return line;
}

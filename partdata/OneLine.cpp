#include "partdata/OneLine.h"

static constexpr std::size_t LongestLine = 80;

static bool IsControl(char c)
{
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

static std::string HexOf(char c)
{
    constexpr std::string_view Digits = "0123456789ABCDEF";
    const auto code = static_cast<unsigned char>(c);
    return {Digits[code >> 4], Digits[code & 0x0FU]};
}

static void AddWithoutControl(std::string& line, char c)
{
    line += IsControl(c) ? "\\x" + HexOf(c) : std::string(1, c);
}

std::string WithoutControls(std::string_view text)
{
    std::string line;
    for (const char c : text)
    {
        AddWithoutControl(line, c);
    }
    return line;
}

std::string OneLine(std::string_view text)
{
    std::string line;
    for (const char c : text)
    {
        // Never cut within a character of several bytes.
        if (line.size() >= LongestLine && (static_cast<unsigned char>(c) & 0xC0U) != 0x80)
        {
            return line + "...";
        }
        AddWithoutControl(line, c);
    }
    return line;
}

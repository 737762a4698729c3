#include "partdata/Utf8.h"

void AppendUtf8(std::string& text, char32_t code)
{
    if (code < 0x80)
    {
        text += static_cast<char>(code);
        return;
    }
    const int following = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    const char32_t lead = following == 1 ? 0xC0 : following == 2 ? 0xE0 : 0xF0;
    text += static_cast<char>(lead | (code >> (6 * following)));
    for (int i = following; i-- > 0;)
    {
        text += static_cast<char>(0x80 | ((code >> (6 * i)) & 0x3F));
    }
}

std::size_t Utf8Length(char lead)
{
    const auto byte = static_cast<unsigned char>(lead);
    if (byte < 0x80)
    {
        return 1;
    }
    if (byte < 0xC2 || byte > 0xF4)
    {
        return 0;
    }
    return byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

#pragma once

/// The bytes of characters in UTF-8.

#include <cstddef>
#include <string>

/// Puts a character behind the text; its code is at most 0x10FFFF.
void AppendUtf8(std::string& text, char32_t code);

/// Bytes of the character that begins with this one; 0 for a byte that begins none.
std::size_t Utf8Length(char lead);

/// True for a byte that goes on with a character.
constexpr bool ContinuesUtf8(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80;
}

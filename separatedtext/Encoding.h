#pragma once

/// The encodings that text files come in.

#include <cstddef>
#include <string>
#include <string_view>

/// The text of a file in UTF-8, without a byte-order mark. UTF-16 is known by its mark, UTF-8 by its form,
/// and what is neither is in Windows-1252. A half of a character in UTF-16 reads as U+FFFD.
///
///     Utf8Of("\xFF\xFE" "a\0")   // "a"
///     Utf8Of("25 \xB0" "C")      // "25 °C"
std::string Utf8Of(std::string bytes);

/// True for a text that begins with the mark of UTF-16, of either byte order.
bool HasUtf16Mark(std::string_view bytes);

/// Where the text stops being UTF-8; its size where it never does.
std::size_t EndOfUtf8(std::string_view text);

/// The text without a byte-order mark of UTF-8.
std::string_view WithoutMark(std::string_view text);

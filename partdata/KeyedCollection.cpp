#include "partdata/KeyedCollection.h"

#include <algorithm>
#include <cstring>

char FoldCase(char c)
{
    const auto code = static_cast<unsigned char>(c);
    const bool ascii = code >= 'a' && code <= 'z';
    // 0xF7 is the division sign; 0xFF has no upper-case form within Latin-1.
    const bool latin = code >= 0xE0 && code <= 0xFE && code != 0xF7;
    return ascii || latin ? static_cast<char>(code - 0x20) : c;
}

bool EqualKeys(std::string_view a, std::string_view b)
{
    return std::ranges::equal(a, b, [](char x, char y) { return x == y || FoldCase(x) == FoldCase(y); });
}

std::uint64_t HashKey(std::string_view key)
{
    // Upper and lower case of every ASCII and Latin-1 letter differ in this bit alone, so setting it in all
    // bytes folds eight of them at once. The few other characters that it makes alike only share a hash.
    constexpr std::uint64_t caseBits = 0x2020202020202020;
    constexpr std::uint64_t multiplier = 0x9E3779B97F4A7C15;

    std::uint64_t hash = key.size();
    while (!key.empty())
    {
        const auto count = std::min(key.size(), sizeof(std::uint64_t));
        std::uint64_t block = 0;
        std::memcpy(&block, key.data(), count);
        hash = (hash ^ (block | caseBits)) * multiplier;
        hash ^= hash >> 32;
        key.remove_prefix(count);
    }
    hash *= multiplier;
    return hash ^ (hash >> 29);
}

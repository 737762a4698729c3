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

std::string FoldedKey(std::string_view key)
{
    std::string folded(key);
    std::ranges::transform(folded, folded.begin(), FoldCase);
    return folded;
}

bool EqualKeys(std::string_view a, std::string_view b)
{
    return a == b || std::ranges::equal(a, b, [](char x, char y) { return FoldCase(x) == FoldCase(y); });
}

/// The first bytes at `bytes` as a number.
template <class Number> static std::uint64_t Load(const char* bytes)
{
    Number number;
    std::memcpy(&number, bytes, sizeof number);
    return number;
}

/// All bytes of a key shorter than eight; some bytes of it may show twice.
static std::uint64_t LoadShort(std::string_view key)
{
    const auto* const bytes = key.data();
    if (key.size() >= 4)
    {
        return Load<std::uint32_t>(bytes) << 32 | Load<std::uint32_t>(bytes + key.size() - 4);
    }
    if (key.size() >= 2)
    {
        return Load<std::uint16_t>(bytes) << 16 | Load<std::uint16_t>(bytes + key.size() - 2);
    }
    return key.empty() ? 0 : Load<std::uint8_t>(bytes);
}

/// `FoldCase` of eight characters at once.
static std::uint64_t FoldCases(std::uint64_t characters)
{
    constexpr std::uint64_t each = 0x0101010101010101;
    constexpr std::uint64_t highBits = 0x80 * each;

    // A sum has the high bit of a character set where its lower seven bits reach the number asked for.
    const auto low = characters & ~highBits;
    const auto reaches = [low](std::uint64_t least) { return low + (0x80 - least) * each; };
    const auto isDivisionSign = ~((low ^ (0x77 * each)) + 0x7F * each);
    const auto ascii = reaches(0x61) & ~reaches(0x7B) & ~characters;
    const auto latin = reaches(0x60) & ~reaches(0x7F) & ~isDivisionSign & characters;
    // Upper and lower case of a letter differ in the bit of 0x20 alone.
    return characters ^ (((ascii | latin) & highBits) >> 2);
}

/// Stirs eight more bytes into a hash.
static std::uint64_t Mix(std::uint64_t hash, std::uint64_t block)
{
    constexpr std::uint64_t multiplier = 0x9E3779B97F4A7C15;

    hash = (hash ^ FoldCases(block)) * multiplier;
    return hash ^ (hash >> 32);
}

std::uint64_t HashKey(std::string_view key)
{
    std::uint64_t hash = key.size();
    if (key.size() < 8)
    {
        return Mix(Mix(hash, LoadShort(key)), 0);
    }
    for (std::size_t at = 0; at + 8 < key.size(); at += 8)
    {
        hash = Mix(hash, Load<std::uint64_t>(key.data() + at));
    }
    // The last eight bytes may overlap the block before them.
    return Mix(Mix(hash, Load<std::uint64_t>(key.data() + key.size() - 8)), 0);
}

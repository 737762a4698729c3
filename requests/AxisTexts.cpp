#include "requests/AxisTexts.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

/// Characters of the longest shortest text of a single: "-1.17549435e-38".
static constexpr std::size_t LongestSingle = 15;

void AppendValues(std::string& text, const CurveValues& values)
{
    // Written in place, and cut to its length afterwards.
    const auto start = text.size();
    text.resize(start + values.size() * (LongestSingle + 1) + 1);
    char* at = text.data() + start;
    char separator = '[';
    for (const float value : values)
    {
        *at++ = separator;
        at = std::isnan(value) ? std::ranges::copy(NoNumber, at).out
                               : std::to_chars(at, at + LongestSingle, value).ptr;
        separator = ',';
    }
    *at++ = ']';
    text.resize(static_cast<std::size_t>(at - text.data()));
}

/// Axes are even divisions between their ends, so that axes of other ends mostly get another place.
static std::size_t PlaceOf(const CurveValues& values, std::size_t places)
{
    const auto first = std::bit_cast<std::uint32_t>(values.front());
    const auto last = std::bit_cast<std::uint32_t>(values.back());
    return ((first ^ last) * 2654435769U >> 16) % places;
}

const std::string& AxisTexts::Of(const CurveValues& values)
{
    Kept& place = kept[PlaceOf(values, kept.size())];
    // Bit by bit: the two zeros have texts of their own.
    // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison)
    if (place.Text.empty() || std::memcmp(place.Values.data(), values.data(), sizeof values) != 0)
    {
        place.Values = values;
        place.Text.clear();
        AppendValues(place.Text, values);
    }
    return place.Text;
}

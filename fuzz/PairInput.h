#pragma once

/// A pair of part files out of the input of a fuzz target.

#include <algorithm>
#include <cstdint>
#include <string_view>

/// The first two bytes tell how long the index is, the low one first; the data file stands behind it.
class PairInput
{
public:
    PairInput(const std::uint8_t* bytes, std::size_t size)
    {
        const std::string_view files(reinterpret_cast<const char*>(bytes), size);
        const auto begin = std::min<std::size_t>(2, size);
        const std::size_t wanted = size < 2 ? 0 : bytes[0] + 256U * bytes[1];
        const auto length = std::min(wanted, size - begin);
        index = files.substr(begin, length);
        data = files.substr(begin + length);
    }

    std::string_view Index() const { return index; }
    std::string_view Data() const { return data; }

private:
    std::string_view index;
    std::string_view data;
};

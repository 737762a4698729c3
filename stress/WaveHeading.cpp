#include "stress/WaveHeading.h"

#include <algorithm>
#include <array>
#include <utility>

namespace
{
constexpr std::array<std::pair<std::string_view, double>, 10> prefixes = {{{"", 1},
                                                                           {"p", 1e-12},
                                                                           {"n", 1e-9},
                                                                           {"u", 1e-6},
                                                                           {"\u00B5", 1e-6},
                                                                           {"\u03BC", 1e-6},
                                                                           {"m", 1e-3},
                                                                           {"k", 1e3},
                                                                           {"K", 1e3},
                                                                           {"M", 1e6}}};

constexpr std::array<std::string_view, 3> units = {"s", "A", "V"};

std::string_view Trimmed(std::string_view text)
{
    const auto first = std::min(text.find_first_not_of(' '), text.size());
    text.remove_prefix(first);
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// Where a unit in brackets begins at the end of a heading; its end where there is none. Round brackets hold
/// a unit only where nothing stands before them: "I(A)" is the current of a part that is called so.
std::size_t PlaceOfUnit(std::string_view heading)
{
    const bool isRound = heading.starts_with('(') && heading.ends_with(')');
    const auto open = isRound ? 0 : heading.rfind('[');
    const bool isClosed = isRound || (open != std::string_view::npos && heading.ends_with(']'));
    return isClosed && WaveUnitOf(heading.substr(open + 1, heading.size() - open - 2)) ? open
                                                                                       : heading.size();
}
} // namespace

std::optional<WaveUnit> WaveUnitOf(std::string_view text)
{
    for (const auto& [prefix, scale] : prefixes)
    {
        if (text.starts_with(prefix))
        {
            const auto unit = std::ranges::find(units, text.substr(prefix.size()));
            if (unit != units.end())
            {
                return WaveUnit{scale, std::string(*unit)};
            }
        }
    }
    return std::nullopt;
}

std::optional<WaveUnit> UnitInHeading(std::string_view heading)
{
    const auto place = PlaceOfUnit(heading);
    return place < heading.size() ? WaveUnitOf(heading.substr(place + 1, heading.size() - place - 2))
                                  : std::nullopt;
}

std::string_view WithoutUnit(std::string_view heading)
{
    return Trimmed(heading.substr(0, PlaceOfUnit(heading)));
}

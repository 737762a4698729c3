#pragma once

/// What the heading of a column says of its values.

#include <optional>
#include <string>
#include <string_view>

/// A unit of time, current or voltage with its prefix: 1e-3 and "A" of "mA".
struct WaveUnit
{
    double Scale;
    /// "s", "A" or "V".
    std::string Name;
};

/// The unit of "us", "mA", "V"; nothing for any other text.
std::optional<WaveUnit> WaveUnitOf(std::string_view text);

/// The unit in brackets at the end of a heading, "Current [mA]", or the one that it consists of, "(ms)" or
/// "[A]".
std::optional<WaveUnit> UnitInHeading(std::string_view heading);

/// The heading without a unit in brackets at its end.
std::string_view WithoutUnit(std::string_view heading);

#pragma once

/// Why parts are left out of an answer, other than for what is wanted of them.

#include "find/OperatingPoint.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// In the order in which they count: a part counts under the first that holds.
enum class LeftOutReason : std::uint8_t
{
    NoCapacitanceData,
    NoHeatingData,
    BiasTooHigh,
    TemperatureOutOfRange,
    NoPermittedRise,
    SizeWithoutMeasures,
    CannotBeCalculated,
};

inline constexpr std::size_t LeftOutReasons = 7;

/// How many parts each reason has left out.
class LeftOutCounts
{
public:
    void Add(LeftOutReason reason) { ++counts[static_cast<std::size_t>(reason)]; }
    std::size_t operator[](LeftOutReason reason) const { return counts[static_cast<std::size_t>(reason)]; }
    std::size_t Total() const;
    /// The first reason that has left out a part; nothing where none has.
    std::optional<LeftOutReason> First() const;

private:
    std::array<std::size_t, LeftOutReasons> counts{};
};

/// "bias too high".
std::string_view TextOf(LeftOutReason reason);

/// "no part fits", "1 part fits", "25 parts fit".
std::string FittingText(std::size_t fitting);

/// "25 parts fit; left out: 3 no heating data, 21 bias too high", "1 part fits", "no part fits".
std::string FitText(std::size_t fitting, const LeftOutCounts& leftOut);

/// What is told of an ambient range that reaches below the heating data; empty for any other.
std::string_view NoteOnHeating(const OperatingPoint& at);

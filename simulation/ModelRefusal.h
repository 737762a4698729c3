#pragma once

/// Why a part has no model.

#include <cstdint>
#include <string_view>

/// In the order in which they are looked for.
enum class ModelRefusal : std::uint8_t
{
    NoCapacitanceData,
    /// Neither listed nor one of the special parts.
    UnknownCharacteristic,
    /// Nominal capacitance or rated voltage is 0, negative or no number.
    NoRatings,
    /// Somewhere within the conditions of its charts.
    CapacitanceNotPositive,
    /// The slope of the model's charge is not the capacitance of the charts.
    ChargeDeviates,
    CannotBeCalculated,
    /// Another model of the file bears the name.
    NameTaken,
};

inline constexpr std::size_t ModelRefusals = 7;

/// "no capacitance data".
std::string_view TextOf(ModelRefusal refusal);

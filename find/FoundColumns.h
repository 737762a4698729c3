#pragma once

/// What a list of found parts tells of each of them.

#include "find/Wants.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

/// In the order of the list.
enum class FoundColumn : std::uint8_t
{
    Part,
    Size,
    Characteristic,
    Capacitance,
    RatedVoltage,
    EffectiveCapacitance,
    Left,
    PermittedRise,
    LossResistance,
    Current,
    Voltage,
    ApparentPower,
    EffectivePower,
    Rise,
    Body,
    Ripple,
    Count,
    Total,
    Area,
    MostCapacitance,
    Margin,
    WarmCapacitance,
};

inline constexpr std::size_t FoundColumnCount = 22;

/// Where in the ranges of conditions a value occurs.
enum class FoundPlace : std::uint8_t
{
    Least,
    Most,
    Rise,
    Margin,
};

inline constexpr std::size_t FoundPlaceCount = 4;

/// What is known of one place.
struct FoundPlaceKind
{
    FoundPlace Id;
    /// The column whose value occurs there.
    FoundColumn Of;
    /// "least".
    std::string_view Key;
    /// The conditions that tell the place.
    std::array<Quantity, 2> Conditions;
};

/// All places in the order of the list.
std::span<const FoundPlaceKind, FoundPlaceCount> FoundPlaces();

/// All that is known of a place.
const FoundPlaceKind& KindOf(FoundPlace place);

/// What a question must hold for a column to apply to it.
enum class ColumnNeed : std::uint8_t
{
    Nothing,
    Frequency,
    Load,
    CurrentLoad,
    Bank,
};

/// What is known of one column.
struct FoundColumnKind
{
    FoundColumn Id;
    /// What commands call it: "effective-capacitance".
    std::string_view Key;
    /// "pF", degrees with their sign; empty for a text or a bare number.
    std::string_view Unit;
    ColumnNeed Needs;
};

/// All columns in the order of the list.
std::span<const FoundColumnKind, FoundColumnCount> FoundColumns();

/// All that is known of a column.
const FoundColumnKind& KindOf(FoundColumn column);

/// True when the question asks for what the column tells.
bool Applies(ColumnNeed need, const FindQuestion& question);

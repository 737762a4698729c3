#pragma once

/// What the columns of a bill of materials and of its conditions mean, and the headings they are known by.

#include "calc/Quantities.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

enum class BomField : std::uint8_t
{
    Reference,
    Part,
    /// A part number where no column says that it is one.
    Value,
    Quantity,
    NotFitted,
    Fitted,
    Net,
    DCBias,
    Ambient,
    Current,
    Frequency,
    Converter,
    Waveform,
    HeatResistance,
    Tolerance,
    Parallel,
    NetCurrent,
    NetFrequency,
    NetConverter,
    NetWaveform,
    NetMinCapacitance,
    MinCapacitance,
    MinLeft,
    MinWarmCapacitance,
    MaxRise,
    MaxLossResistance,
    MaxBias,
};

inline constexpr std::size_t BomFieldCount = 27;

/// What is known of one meaning.
struct BomFieldKind
{
    BomField Id;
    /// "dc bias", as messages call it.
    std::string_view Name;
    /// "dcBias", as rules call it; empty where none does.
    std::string_view Key;
    /// The unit of bare numbers is that of the quantity; nothing for texts and counts.
    std::optional<Quantity> Measures;
    /// Small letters and digits alone, between blanks.
    std::string_view Headings;
};

/// In the order of `BomField`.
const BomFieldKind& KindOf(BomField field);

/// Small letters and digits of a heading without its unit: "dcbias" of "DC Bias [V]".
std::string HeadingKey(std::string_view heading);

/// The unit in brackets behind a heading: "V" of "DC Bias [V]"; empty where there is none, and for the plural
/// of "Reference(s)".
std::string_view UnitOfHeading(std::string_view heading);

/// The meaning of a heading, whatever its letter case, blanks and punctuation; nothing for any other.
std::optional<BomField> FieldOfHeading(std::string_view heading);

/// True for headings that name a voltage or a derating without saying which: they are not taken by
/// themselves.
bool IsAmbiguousHeading(std::string_view heading);

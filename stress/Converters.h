#pragma once

/// The currents of switching converters, from their data alone.

#include "stress/Waveform.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

enum class ConverterKind : std::uint8_t
{
    Buck,
    Boost,
    Flyback,
};

enum class ConverterSide : std::uint8_t
{
    Input,
    Output,
};

/// What is known of one kind.
struct ConverterName
{
    ConverterKind Id;
    /// "buck".
    std::string_view Name;
    /// The side whose current is pulsed.
    ConverterSide PulsedSide;
};

/// All kinds, in order.
inline constexpr std::array<ConverterName, 3> ConverterNames = {{
    {ConverterKind::Buck, "buck", ConverterSide::Input},
    {ConverterKind::Boost, "boost", ConverterSide::Output},
    {ConverterKind::Flyback, "flyback", ConverterSide::Output},
}};

/// "input" and "output", in the order of `ConverterSide`.
inline constexpr std::array<std::string_view, 2> ConverterSideNames = {"input", "output"};

constexpr const ConverterName& KindOf(ConverterKind kind)
{
    return ConverterNames.at(static_cast<std::size_t>(kind));
}

/// A converter at its operating point. Ideal switches and coil; all the alternating current of a side goes
/// through its capacitors, none through source, load or a bulk capacitor beside them.
struct Converter
{
    ConverterKind Kind;
    double Vin;
    double Vout;
    double Iout;
    double Hertz;
    /// Of the coil; of a flyback's primary side. In H.
    double Henries;
    /// A flyback's primary to secondary turns.
    double Turns = 1;
    /// The coil's current goes on through zero at any load, as under synchronous switches.
    bool IsForced = false;

    double VoltageOf(ConverterSide side) const { return side == ConverterSide::Input ? Vin : Vout; }
};

/// How the coil works at an operating point.
struct CoilState
{
    /// The share of the period in which the coil is charged, and the one in which it is emptied.
    double Charging;
    double Emptying;
    /// The coil's least and largest current in A.
    double Least;
    double Most;
    bool IsContinuous;
};

/// Why a converter makes no sense, or nothing: a value that is not above 0, a frequency outside 1 kHz to 10
/// MHz, an output that the kind cannot make of the input.
std::optional<std::string_view> RefuseConverter(const Converter& converter);

/// The state of the coil of a converter that is not refused.
CoilState CoilOf(const Converter& converter);

/// One period of the current into the capacitors of a side, from the moment that the coil begins to charge.
Waveform CurrentOf(const Converter& converter, ConverterSide side);

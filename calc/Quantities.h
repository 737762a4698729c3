#pragma once

/// The quantities that axes, conditions and parameters measure: their names, their units, and how their
/// values are kept.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

enum class Quantity : std::uint8_t
{
    Current,
    RmsVoltage,
    ApparentPower,
    EffectivePower,
    Frequency,
    Temperature,
    TemperatureRise,
    DCVoltage,
    Capacitance,
    CapacitanceChange,
    HeatResistance,
    LossResistance,
    Time,
    Inductance,
};

/// What is known of one quantity.
struct QuantityKind
{
    Quantity Id;
    /// As axis lists and titles show it: "Apparent Power".
    std::string_view Name;
    /// The unit that values are shown and entered in: "kHz". Degrees are a plain "C"; see `HasDegrees`.
    std::string_view Unit;
    /// A degree sign may stand before the unit.
    bool HasDegrees = false;
    /// The unit that the points of a curve are kept in: "Hz" for a frequency, else the unit shown.
    std::string_view StoredUnit = Unit;
    /// Kept units to one shown unit: the X of a frequency is kept in Hz and shown in kHz.
    float StoredPerShown = 1;
    bool CanBeNegative = false;
    /// The unit that takes prefixes, "F" of a capacitance; empty for a quantity that is told without them.
    std::string_view PrefixedUnit = {};
    /// A kept unit is ten to this power of the unit that takes prefixes.
    int PrefixedExponent = 0;
};

/// All that is known of a quantity.
const QuantityKind& KindOf(Quantity quantity);

/// The quantity of a name, letter case included, or nothing.
std::optional<Quantity> FindQuantity(std::string_view name);

/// The quantity of a name. Throws RunTimeError 5 that tells the name when no quantity is called so.
Quantity QuantityNamed(std::string_view name);

/// Throws RunTimeError 5 that tells the quantity: the one at hand has no law here.
[[noreturn]] void FailOn(Quantity quantity);

/// A value of an axis in the unit that is shown: 300 for a frequency of 300,000 Hz.
float ShownValue(Quantity quantity, double stored);

/// The quantity's name.
inline std::string_view NameOf(Quantity quantity)
{
    return KindOf(quantity).Name;
}

/// Unit text that follows an axis or parameter name in titles and tables: "[Arms]" for a current. The degree
/// sign stands in the unit of temperatures; without one it is the plain "[C]" of data files and messages.
std::string UnitOf(Quantity quantity, std::string_view degreeSign = {});

/// The degree sign of charts, panes and pages.
inline constexpr std::string_view defaultDegreeSign = "\u00B0";

/// The unit that values are shown and entered in, without brackets: "kHz", "\u00B0C".
std::string ShownUnitOf(Quantity quantity, std::string_view degreeSign = defaultDegreeSign);

/// The unit that the points of an axis are kept in, by the axis text: "Arms" of "Current", "Hz" of
/// "Frequency". Throws RunTimeError 5 when no quantity is called so.
std::string StoredUnitOf(std::string_view axisName);

/// `UnitOf` the quantity of an axis or parameter name. Throws RunTimeError 5 that tells the name when no
/// quantity is called so.
std::string GetUnit(std::string_view name, std::string_view degreeSign);

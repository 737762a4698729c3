#pragma once

/// The conditions that a curve is computed under: where they are kept, what they are called, and the rules
/// that judge what is entered for them.

#include "calc/ChartRecord.h"
#include "calc/Quantities.h"
#include "partdata/Characteristic.h"
#include "partdata/PartRecord.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// In the order in which the form shows them.
enum class Condition : std::uint8_t
{
    DCBias,
    Frequency,
    HeatResistance,
    AmbientTemperature,
    /// The fixed load of a temperature rise over frequency; the record's `ParameterName` says which load.
    Parameter,
};

inline constexpr std::size_t ConditionCount = 5;

/// The order in which Plot judges them.
inline constexpr std::array<Condition, ConditionCount> JudgingOrder = {
    Condition::DCBias,    Condition::HeatResistance, Condition::AmbientTemperature,
    Condition::Frequency, Condition::Parameter,
};

/// How entries are read: whether a comma is a decimal sign as well as a point.
struct EntryLocale
{
    bool CommaIsDecimal = false;
};

/// The message that refuses an entry, or nothing for a valid one; two lines are separated by carriage return
/// and line feed.
using Refusal = std::optional<std::string>;

/// Judges an entry for a part in a code view.
using ConditionRule = Refusal (*)(std::string_view entry, const PartRecord& part, CodeView view,
                                  EntryLocale locale);

/// What is known of one condition.
struct ConditionKind
{
    Condition Id;
    /// The parameter has no quantity of its own.
    std::optional<Quantity> Measures;
    /// "DC Bias Voltage".
    std::string_view Name;
    /// What requests call it: "dcBias".
    std::string_view Key;
    /// What forms call it behind the kind of a control: "DCBiasVol" of `txtDCBiasVol`.
    std::string_view ControlName;
    float ChartRecord::*Value;
    ConditionRule Refuse;
};

/// All conditions, in the order in which the form shows them.
std::span<const ConditionKind, ConditionCount> ConditionKinds();

/// All that is known of a condition.
const ConditionKind& KindOf(Condition condition);

/// What stands for a condition before anything is entered: the part's own heat resistance, the view's
/// reference temperature as ambient temperature; empty for the others.
std::string FirstEntry(Condition condition, const PartRecord& part, CodeView view);

// ---- What is permitted ----

/// DC bias in V: from 0 to the part's rated voltage.
bool IsDCBiasPermitted(float volts, const PartRecord& part);

/// DC bias in V: from 0 to below the part's rated voltage.
bool IsDCBiasBelowRated(float volts, const PartRecord& part);

/// Heat resistance in °C/W: above 0, and finite.
bool IsHeatResistancePermitted(float perWatt);

/// Ambient temperature in °C of the heating charts.
bool IsHeatingAmbientPermitted(float celsius, const PartRecord& part);

/// The ambient temperatures that the capacitance charts permit: the range of the part's characteristic, which
/// depends on the code on display; -55 to 125 °C for a characteristic that is not listed.
TemperatureRange ClassAmbientRange(const PartRecord& part, CodeView view);

/// Ambient temperature in °C of the capacitance charts.
bool IsClassAmbientPermitted(float celsius, const PartRecord& part, CodeView view);

/// Frequency in kHz: 10 to 1000.
bool IsFrequencyPermitted(float kilohertz);

// ---- The rules in words ----

/// DC bias in V: from 0 to the part's rated voltage.
Refusal RefuseDCBias(std::string_view entry, const PartRecord& part, CodeView view, EntryLocale locale);

/// DC bias in V: from 0 to below the part's rated voltage.
Refusal RefuseDCBiasAtRated(std::string_view entry, const PartRecord& part, CodeView view,
                            EntryLocale locale);

/// Heat resistance in °C/W: above 0.
Refusal RefuseHeatResistance(std::string_view entry, const PartRecord& part, CodeView view,
                             EntryLocale locale);

/// Ambient temperature in °C of the heating charts: 20 to the part's upper operating temperature.
Refusal RefuseHeatingAmbient(std::string_view entry, const PartRecord& part, CodeView view,
                             EntryLocale locale);

/// Ambient temperature in °C of the capacitance charts: the range of the part's characteristic, which
/// depends on the code on display; -55 to 125 for a characteristic other than X7R, X5R and Y5V.
Refusal RefuseClassAmbient(std::string_view entry, const PartRecord& part, CodeView view, EntryLocale locale);

/// Frequency in kHz: 10 to 1000.
Refusal RefuseFrequency(std::string_view entry, const PartRecord& part, CodeView view, EntryLocale locale);

/// Parameter: any number; its upper limit is found by the calculation.
Refusal RefuseNoNumber(std::string_view entry, const PartRecord& part, CodeView view, EntryLocale locale);

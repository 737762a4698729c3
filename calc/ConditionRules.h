#pragma once

/// The rules that judge what the user enters as operating conditions.

#include "partdata/PartRecord.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// How entries are read: whether a comma is a decimal sign as well as a point.
struct EntryLocale
{
    bool CommaIsDecimal = false;
};

/// The message that refuses an entry, or nothing for a valid one; two lines are separated by carriage return
/// and line feed.
using Refusal = std::optional<std::string>;

/// DC bias in V: from 0 to the part's rated voltage, for allowable power below it.
Refusal RefuseDCBiasVol(std::string_view entry, const PartRecord& part, std::int16_t chartType,
                        EntryLocale locale);

/// Frequency in kHz: 10 to 1000.
Refusal RefuseFrequency(std::string_view entry, EntryLocale locale);

/// Heat resistance in °C/W: above 0.
Refusal RefuseHeatResistance(std::string_view entry, EntryLocale locale);

/// Ambient temperature in °C of temperature rise and allowable power: 20 to the part's upper operating
/// temperature.
Refusal RefuseAmbientTemp1(std::string_view entry, const PartRecord& part, EntryLocale locale);

/// Ambient temperature in °C of the capacitance charts: the range of the part's characteristic, which
/// depends on the code on display; -55 to 125 for a characteristic that is not listed.
Refusal RefuseAmbientTemp2(std::string_view entry, const PartRecord& part, CodeView view, EntryLocale locale);

/// Parameter: any number; its upper limit is found by the calculation.
Refusal RefuseParameter(std::string_view entry, EntryLocale locale);

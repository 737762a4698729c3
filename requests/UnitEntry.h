#pragma once

/// Values as engineers type them: "12V", "300kHz", "1.5Arms", "4.7uF".

#include "calc/Quantities.h"

#include <string>
#include <string_view>

/// The value as it would be typed into the form: a number in the quantity's own unit, its digits kept.
/// Prefixes from p to G are told apart by letter case, units are not; a blank may stand before the unit. A
/// text that does not begin with a number is handed on as it is, for the rules to refuse it.
///
///     EntryInUnit("12V", Quantity::DCVoltage)          // "12"
///     EntryInUnit("0.3MHz", Quantity::Frequency)     // "0.3E3", that is 300 kHz
///     EntryInUnit("4.7uF", Quantity::Capacitance)    // "4.7E6"
///
/// Throws RequestError that bears the key for a unit that does not fit: "12V" has no unit of frequency.
std::string EntryInUnit(std::string_view typed, Quantity quantity, std::string_view key = {});

/// What stands behind the number: "kHz" of "300 kHz"; empty where nothing does, and for a text that does not
/// begin with a number.
std::string_view UnitTypedIn(std::string_view typed);

/// The value as a number. Throws RequestError that bears the key for a unit that does not fit, for a range,
/// and for a text that is no number.
float ValueInUnit(std::string_view typed, Quantity quantity, std::string_view key = {});

/// The value in the unit that points are kept in: 300,000 Hz of "300" for a frequency. Throws as
/// `ValueInUnit`.
float StoredValueInUnit(std::string_view typed, Quantity quantity, std::string_view key = {});

/// The same in double precision, for what no curve is drawn of: a time, a converter's data.
double StoredNumberInUnit(std::string_view typed, Quantity quantity, std::string_view key = {});

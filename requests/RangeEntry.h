#pragma once

/// Ranges of conditions as engineers type them: "10.8..13.2V", "12V±10%".

#include "calc/Box.h"
#include "calc/Quantities.h"
#include "requests/RangeSigns.h"

#include <optional>
#include <string>
#include <string_view>

/// The ends of a range as each would be typed on its own.
struct TypedEnds
{
    std::string Low;
    std::string High;
};

/// The ends of "A..B", where the unit behind B is A's too unless A bears its own, and of "M±P%" and "M±D",
/// where "+-" stands for the sign as well and a bare D has the unit of M; nothing for any other text.
///
///     RangeTypedAs("-20..85C", Quantity::Temperature)          // {"-20C", "85C"}
///     RangeTypedAs("900mV..1.1V", Quantity::DCVoltage)         // {"900mV", "1.1V"}
///     RangeTypedAs("12V±10%", Quantity::DCVoltage)             // {"10.8", "13.2"}
///
/// Throws RequestError that bears the key for an end that is left open, for three points, and for a text or
/// unit that does not fit.
std::optional<TypedEnds> RangeTypedAs(std::string_view typed, Quantity quantity, std::string_view key = {});

/// A value or a range, each end as `ValueInUnit` reads it. Throws as `RangeTypedAs`, and RequestError for a
/// first end above the second.
ConditionRange ConditionRangeOf(std::string_view typed, Quantity quantity, std::string_view key = {});

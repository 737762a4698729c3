#pragma once

/// Converters as they are typed.

#include "stress/Converters.h"

#include <string_view>

/// The converter of a kind from its data: vin, vout, iout, f and l, of a flyback converter also n, each as
/// NAME=VALUE between blanks; `mode=forced` for a coil whose current goes on through zero. Values may bear
/// units.
///
///     ConverterOf(ConverterKind::Buck, "vin=12 vout=3.3 iout=5 f=500kHz l=2.2uH")
///
/// Throws RequestError that bears the kind's name: for a name that is unknown, missing or there twice, a unit
/// that does not fit, and as a condition for a converter that is impossible.
Converter ConverterOf(ConverterKind kind, std::string_view typed);

/// The side of "input" or "output". Throws RequestError that lists the names.
ConverterSide ConverterSideOf(std::string_view name);

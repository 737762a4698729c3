#pragma once

/// Bounds and reference points that laws, rules and axes share.

#include "partdata/PartRecord.h"

/// The frequencies of every sweep and entry.
inline constexpr double LowestFrequencyHz = 1e4;
inline constexpr double HighestFrequencyHz = 1e6;

/// Ambient temperature that the heating coefficients count from, in °C.
inline constexpr float HeatingReferenceC = 20;
/// The lowest ambient temperature that the heating laws are asked for: the one they were measured at, in °C.
inline constexpr float LowestHeatingAmbientC = HeatingReferenceC;

/// Rise that is permitted well below the upper operating temperature, and recommended on charts, in °C.
inline constexpr float RecommendedRise = 20;

/// Temperature that the capacitance coefficients count from, and reference of the EIA view, in °C.
inline constexpr float EiaReferenceC = 25;
/// Reference temperature of the JIS view, in °C.
inline constexpr float JisReferenceC = 20;

/// The reference temperature of a view, in °C.
constexpr float ReferenceC(CodeView view)
{
    return view == CodeView::Eia ? EiaReferenceC : JisReferenceC;
}

#pragma once

/// A part of a user's own: its names and ratings, and what was measured on it.

#include "fit/Measurements.h"
#include "partdata/FieldNames.h"

#include <array>
#include <optional>
#include <string>

struct MeasuredPart
{
    /// In the order of the index and in its code page.
    std::array<std::string, NameFields> Names;
    double NominalPicofarads = 0;
    double RatedVolts = 0;
    /// Highest operating temperature in °C.
    double UpperC = 0;
    /// That of the rig which the rises were measured on, in °C/W; 0 where no rise was.
    double HeatResistance = 0;
    Measurements Measured;
};

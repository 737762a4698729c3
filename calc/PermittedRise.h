#pragma once

/// The temperature rise that is permitted at an ambient temperature.

#include "calc/Bounds.h"
#include "calc/PowerModel.h"

#include <algorithm>
#include <optional>

/// The recommended rise of a part, or one that is wanted in its place.
struct PermittedRise
{
    /// The part's upper operating temperature, in °C.
    float MaxC = 0;
    std::optional<float> Wanted = {};

    /// In °C; nothing is left of it at the upper temperature.
    double At(double ambientC) const
    {
        return Wanted ? std::min<double>(*Wanted, std::max(0.0, double{MaxC} - ambientC))
                      : dTallow(MaxC, ambientC);
    }
    /// The ambient temperature from which on it falls by one degree a degree.
    float FallsFrom() const { return MaxC - Wanted.value_or(RecommendedRise); }
};

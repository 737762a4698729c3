#pragma once

/// How well letters stand out from their ground.

#include "chart/layout/Colors.h"

#include <algorithm>
#include <cmath>

/// Contrast of two colours, 1 for equal ones to 21 for black on white.
inline double Contrast(const Color& one, const Color& other)
{
    const auto luminance = [](const Color& color)
    {
        const auto part = [](double value)
        { return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4); };
        return 0.2126 * part(color.Red / 255.0) + 0.7152 * part(color.Green / 255.0) +
               0.0722 * part(color.Blue / 255.0);
    };
    const double first = luminance(one);
    const double second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

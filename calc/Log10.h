#pragma once

/// The common logarithm that all curves and axes share.

#include <cmath>

/// ln(v) / ln(10). A hair below 3 for 1000, which the default limits of charts rely on.
inline double Log10(double value)
{
    return std::log(value) / std::log(10.0);
}

#include "ownparts/FittedPart.h"

#include <cmath>

std::optional<Residuals> ResidualsOf(const std::vector<FittedPoint>& points)
{
    if (points.empty())
    {
        return std::nullopt;
    }
    Residuals residuals{.Points = points.size()};
    double sum = 0;
    for (const auto& point : points)
    {
        const double residual = point.Residual();
        sum += residual * residual;
        if (std::abs(residual) > std::abs(residuals.Largest))
        {
            residuals.Largest = residual;
            residuals.Line = point.Line;
        }
    }
    residuals.Rms = std::sqrt(sum / static_cast<double>(points.size()));
    return residuals;
}

#include "fit/VoltageFit.h"

#include "fit/LeastSquares.h"

#include <cmath>

static constexpr double ReferenceC = 20;

/// What bias and temperature take off the logarithm of the voltage of a rise.
static double ShiftOf(const VoltageTerms& known, double r, double t)
{
    return known.BiasLinear * r + known.BiasSquare * r * r - known.WarmthLinear * t -
           known.WarmthSquare * t * t;
}

VoltageTerms FitVoltageTerms(std::span<const MeasuredRise> points, double ratedVolts,
                             const VoltageTerms& known)
{
    // log10 of the rise = E + S2·log10 log10 f + S3·(log10 V + shift).
    std::vector<Row> basis;
    Row target;
    for (const auto& point : points)
    {
        const double shift = ShiftOf(known, point.Volts / ratedVolts, point.Celsius - ReferenceC);
        basis.push_back({1, std::log10(std::log10(point.Hz)), std::log10(point.Load) + shift});
        target.push_back(std::log10(point.Rise));
    }
    const auto weights = LeastSquares(basis, target, Row(basis.size(), 1.0));
    auto terms = known;
    terms.Exponent = {weights[2], 0, 0};
    terms.Slope = weights[1] / weights[2];
    terms.Constant = (std::log10(AgreedRiseC) - weights[0]) / weights[2];
    return terms;
}

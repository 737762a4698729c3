#pragma once

/// The capacitance of parts whose temperature and bias work apart: C = C0·(1 + P(T))·(1 - L(V)).

#include "fit/BiasLoss.h"
#include "fit/Measurements.h"

#include <span>

/// Within this many °C readings belong to one temperature of a sweep.
inline constexpr double TemperatureStepC = 2;

struct PolynomialFit
{
    /// C0, at 25 °C without bias.
    double Picofarads = 0;
    BiasLosses Losses{};
    /// P, relative, in powers of (T - 25)/100; zero beyond the degree.
    OriginPolynomial Change{};
    /// 0 for a capacitance that is flat over temperature.
    std::size_t Degree = 0;
    /// What the law is off, relative, at temperatures that it was not fitted to.
    double LeftOut = 0;
};

/// The law through the points, each of which weighs by its own size. The degree over temperature begins with
/// 2 and grows, up to 6 and to two less than the temperatures, while the law comes that much closer to
/// temperatures that are left out in turn; with fewer than four temperatures there is none.
///
/// Needs a point at another fraction of the rated voltage for each of the losses that are to show.
PolynomialFit FitPolynomial(std::span<const MeasuredCapacitance> points, double ratedVolts);

/// Writes the capacitance, its bias and its temperature polynomial.
void WritePolynomialFit(const PolynomialFit& fit, double ratedVolts, PartValues& data);

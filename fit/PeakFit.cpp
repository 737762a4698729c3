#include "fit/PeakFit.h"

#include "fit/Crowds.h"

#include <unsupported/Eigen/NonLinearOptimization>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <vector>

namespace
{
using Vector = Eigen::VectorXd;
using Matrix = Eigen::MatrixXd;

constexpr double ReferenceC = 25;
constexpr double FlankC = 50;
constexpr double Percent = 100;
constexpr std::array<double, 4> FirstPeaks = {5, 15, 25, 35};
/// Points that a first guess needs at most.
constexpr std::size_t EnoughToGuess = 500;

/// A value that parts usually have, and how far they lie about it.
struct Usual
{
    double Value;
    double Spread;

    double PullOn(double value) const { return (value - Value) / Spread; }
};
constexpr Usual UsualExponent = {1.65, 0.3};
/// The logarithm of the percentage that is left far from the peak: 5 % of the capacitance at 25 °C.
constexpr Usual UsualRest = {1.6094379124341003, 0.3};

/// The unknowns of the fit, in logarithms and roots of what must be positive.
namespace Unknown
{
enum Index : Eigen::Index
{
    LogPicofarads,
    LogRest,
    PeakC,
    LogDecayBelow,
    LogDecayAbove,
    ExponentBelow,
    ExponentAbove,
    FirstLossRoot,
    ShiftByBias = FirstLossRoot + static_cast<Eigen::Index>(RisingPieces),
    DecayBelowByBias,
    DecayAboveByBias,
    Count,
};
} // namespace Unknown

constexpr Eigen::Index Pulls = 3;

double BellAt(const PeakFit& fit, double r, double celsius)
{
    const double distance = celsius - fit.PeakC - fit.ByBias.Shift * r * r;
    const auto& flank = distance >= 0 ? fit.Above : fit.Below;
    const double byBias = distance >= 0 ? fit.ByBias.DecayAbove : fit.ByBias.DecayBelow;
    const double decay = flank.Decay * (1 + byBias * r * r);
    return std::exp(-decay * std::pow(std::abs(distance) / FlankC, flank.Exponent));
}

double AmplitudeOf(const PeakFit& fit)
{
    return -fit.Offset / BellAt(fit, 0, ReferenceC);
}

/// The bell of the unknowns, of which there are fewer where it is known what bias does to it.
PeakFit FitOf(const Vector& unknown, const std::optional<PeakByBias>& known)
{
    PeakFit fit{.Picofarads = std::exp(unknown[Unknown::LogPicofarads]),
                .Offset = std::exp(unknown[Unknown::LogRest]) - Percent,
                .PeakC = unknown[Unknown::PeakC],
                .Below = {std::exp(unknown[Unknown::LogDecayBelow]), unknown[Unknown::ExponentBelow]},
                .Above = {std::exp(unknown[Unknown::LogDecayAbove]), unknown[Unknown::ExponentAbove]},
                .ByBias = known
                              ? *known
                              : PeakByBias{unknown[Unknown::ShiftByBias], unknown[Unknown::DecayBelowByBias],
                                           unknown[Unknown::DecayAboveByBias]}};
    for (std::size_t k = 0; k < RisingPieces; ++k)
    {
        const double root = unknown[Unknown::FirstLossRoot + static_cast<Eigen::Index>(k)];
        fit.Losses[k] = root * root;
    }
    return fit;
}

/// What the optimiser asks: the misses in percent, then the pulls, and their slopes.
struct Misses
{
    std::span<const MeasuredCapacitance> Points;
    double RatedVolts;
    const std::optional<PeakByBias>& Known;

    Eigen::Index values() const { return static_cast<Eigen::Index>(Points.size()) + Pulls; }

    int operator()(const Vector& unknown, Vector& misses) const
    {
        const auto fit = FitOf(unknown, Known);
        const double amplitude = AmplitudeOf(fit);
        Eigen::Index i = 0;
        for (const auto& point : Points)
        {
            const double r = point.Volts / RatedVolts;
            const double change =
                amplitude * (1 - LossAt(fit.Losses, r)) * BellAt(fit, r, point.Celsius) + fit.Offset;
            misses[i++] = std::sqrt(point.Weight) * Percent *
                          (fit.Picofarads * (1 + change / Percent) / point.Picofarads - 1);
        }
        misses[i++] = UsualExponent.PullOn(fit.Below.Exponent);
        misses[i++] = UsualExponent.PullOn(fit.Above.Exponent);
        misses[i++] = UsualRest.PullOn(unknown[Unknown::LogRest]);
        return 0;
    }

    int df(const Vector& unknown, Matrix& slopes) const
    {
        Vector low(values());
        Vector high(values());
        for (Eigen::Index k = 0; k < unknown.size(); ++k)
        {
            const double step = 1e-6 * std::max(1.0, std::abs(unknown[k]));
            Vector moved = unknown;
            moved[k] = unknown[k] + step;
            (*this)(moved, high);
            moved[k] = unknown[k] - step;
            (*this)(moved, low);
            slopes.col(k) = (high - low) / (2 * step);
        }
        return 0;
    }
};

/// Capacitance about room temperature without bias, or anywhere near.
double FirstPicofarads(std::span<const MeasuredCapacitance> points)
{
    const auto nearest = std::ranges::min_element(
        points, {}, [](const auto& point) { return std::abs(point.Celsius - ReferenceC) + point.Volts; });
    return nearest->Picofarads;
}

Vector FirstGuess(std::span<const MeasuredCapacitance> points, bool isKnown, double peakC)
{
    Vector guess = Vector::Zero(isKnown ? Eigen::Index{Unknown::ShiftByBias} : Eigen::Index{Unknown::Count});
    guess[Unknown::LogPicofarads] = std::log(FirstPicofarads(points));
    guess[Unknown::LogRest] = UsualRest.Value;
    guess[Unknown::PeakC] = peakC;
    guess[Unknown::ExponentBelow] = UsualExponent.Value;
    guess[Unknown::ExponentAbove] = UsualExponent.Value;
    guess.segment(Unknown::FirstLossRoot, static_cast<Eigen::Index>(RisingPieces)).setConstant(0.9);
    return guess;
}

/// Brings the unknowns to the least misses; returns the sum of their squares, infinite where there are none.
double Improve(const Misses& misses, Vector& unknown)
{
    Eigen::LevenbergMarquardt<const Misses> optimiser(misses);
    optimiser.parameters.ftol = optimiser.parameters.xtol = 1e-10;
    optimiser.minimize(unknown);
    const double cost = optimiser.fvec.squaredNorm();
    return std::isfinite(cost) ? cost : std::numeric_limits<double>::infinity();
}

/// Some of the points, evenly picked.
std::vector<MeasuredCapacitance> Some(std::span<const MeasuredCapacitance> points)
{
    const auto every = 1 + points.size() / EnoughToGuess;
    std::vector<MeasuredCapacitance> some;
    for (std::size_t i = 0; i < points.size(); i += every)
    {
        some.push_back(points[i]);
    }
    return some;
}
} // namespace

PeakFit FitPeak(std::span<const MeasuredCapacitance> measured, double ratedVolts,
                const std::optional<PeakByBias>& known)
{
    const auto points = Uncrowded(measured, ratedVolts);
    const auto some = Some(points);
    Vector best;
    double bestCost = std::numeric_limits<double>::infinity();
    for (const double peakC : FirstPeaks)
    {
        auto unknown = FirstGuess(points, known.has_value(), peakC);
        const double cost = Improve({some, ratedVolts, known}, unknown);
        if (best.size() == 0 || cost < bestCost)
        {
            best = unknown;
            bestCost = cost;
        }
    }
    const double cost = some.size() == points.size() ? bestCost : Improve({points, ratedVolts, known}, best);
    auto fit = FitOf(best, known);
    fit.Cost = cost;
    return fit;
}

/// Writes one side of the bell; its decay counts per °C^n.
static void WriteFlank(const PeakFlank& flank, double changePerSquare, ValueGroup decay,
                       Value::Index exponent, PartValues& data)
{
    const double perC = flank.Decay / std::pow(FlankC, flank.Exponent);
    data[decay.First] = perC * changePerSquare;
    data[decay.Last] = perC;
    data[exponent] = flank.Exponent;
}

void WritePeakFit(const PeakFit& fit, double ratedVolts, PartValues& data)
{
    data[Value::NominalCapacitance] = fit.Picofarads;
    WriteBiasLoss(fit.Losses, ratedVolts, data);
    data[Value::PeakAmplitude] = AmplitudeOf(fit);
    data[Value::PeakOffset] = fit.Offset;
    const double square = ratedVolts * ratedVolts;
    data[Value::PeakTemperatureV2] = fit.ByBias.Shift / square;
    data[Value::PeakTemperature] = fit.PeakC;
    WriteFlank(fit.Below, fit.ByBias.DecayBelow / square, Values::DecayBelow, Value::ExponentBelow, data);
    WriteFlank(fit.Above, fit.ByBias.DecayAbove / square, Values::DecayAbove, Value::ExponentAbove, data);
}

#include "ownparts/Sweeps.h"

#include "fit/PolynomialFit.h"

#include <algorithm>

/// Shares of the rated voltage: within the first, readings belong to one bias; up to the second there is
/// none; from the third on a sweep over temperature shows what bias does to a peak.
static constexpr double BiasStep = 0.01;
static constexpr double NoBias = 0.002;
static constexpr double HighBias = 0.8;
static constexpr std::size_t TemperaturesOfASweep = 5;
static constexpr double FrequencyRatio = 1.05;

template <class Point, class Selects>
static std::vector<double> Select(std::span<const Point> points, double Point::*value, const Selects& selects)
{
    std::vector<double> values;
    for (const auto& point : points)
    {
        if (selects(point))
        {
            values.push_back(point.*value);
        }
    }
    return values;
}

static bool EveryPoint(const MeasuredCapacitance& /*point*/)
{
    return true;
}

std::vector<Step> BiasesOf(std::span<const MeasuredCapacitance> points, double ratedVolts,
                           const CountsPoint& counts)
{
    return StepsOf(Select(points, &MeasuredCapacitance::Volts, counts), BiasStep * ratedVolts);
}

std::vector<Step> TemperaturesOf(std::span<const MeasuredCapacitance> points, const CountsPoint& counts)
{
    return StepsOf(Select(points, &MeasuredCapacitance::Celsius, counts), TemperatureStepC);
}

bool IsUnbiased(double volts, double ratedVolts)
{
    return volts <= NoBias * ratedVolts;
}

CapacitanceSweeps SweepsOf(std::span<const MeasuredCapacitance> points, double ratedVolts)
{
    using Point = MeasuredCapacitance;
    CapacitanceSweeps sweeps;
    for (const auto& step : TemperaturesOf(points, EveryPoint))
    {
        auto biases =
            BiasesOf(points, ratedVolts, [&step](const Point& point) { return step.Holds(point.Celsius); });
        if (biases.size() > sweeps.Biases.size())
        {
            sweeps.BiasTemperature = step;
            sweeps.Biases = std::move(biases);
        }
    }
    sweeps.Temperatures =
        TemperaturesOf(points, [=](const Point& point) { return IsUnbiased(point.Volts, ratedVolts); });
    for (const auto& step : BiasesOf(points, ratedVolts, EveryPoint))
    {
        auto temperatures =
            TemperaturesOf(points, [&step](const Point& point) { return step.Holds(point.Volts); });
        if (step.Most >= HighBias * ratedVolts && temperatures.size() >= TemperaturesOfASweep)
        {
            sweeps.BiasOfTemperatures = step;
            sweeps.TemperaturesUnderBias = std::move(temperatures);
        }
    }
    return sweeps;
}

HeatingSweeps SweepsOf(std::span<const MeasuredRise> points)
{
    const auto every = [](const MeasuredRise&) { return true; };
    return {RatioStepsOf(Select(points, &MeasuredRise::Hz, every), FrequencyRatio),
            StepsOf(Select(points, &MeasuredRise::Celsius, every), TemperatureStepC)};
}

double SpanRatio(const std::vector<Step>& steps)
{
    return steps.empty() ? 1 : steps.back().Most / steps.front().Least;
}

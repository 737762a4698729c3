#pragma once

/// The sweeps that measurements fall into: biases at one temperature, temperatures at one bias, frequencies.

#include "fit/Steps.h"
#include "ownparts/MeasuredPart.h"

#include <functional>
#include <span>
#include <vector>

/// The sweeps of the capacitance of a part.
struct CapacitanceSweeps
{
    /// The temperature that most biases were measured at, and these biases.
    Step BiasTemperature{};
    std::vector<Step> Biases;
    /// The temperatures that were measured without bias.
    std::vector<Step> Temperatures;
    /// The highest bias of at least 80 % of the rated voltage that five temperatures were measured at, and
    /// these temperatures; none where there is no such bias.
    std::vector<Step> TemperaturesUnderBias;
    Step BiasOfTemperatures{};
};

/// Empty for no points.
CapacitanceSweeps SweepsOf(std::span<const MeasuredCapacitance> points, double ratedVolts);

/// The biases, and the temperatures, of the points that count.
using CountsPoint = std::function<bool(const MeasuredCapacitance&)>;
std::vector<Step> BiasesOf(std::span<const MeasuredCapacitance> points, double ratedVolts,
                           const CountsPoint& counts);
std::vector<Step> TemperaturesOf(std::span<const MeasuredCapacitance> points, const CountsPoint& counts);

/// True for a bias that counts as none.
bool IsUnbiased(double volts, double ratedVolts);

/// The sweeps of the heating by current.
struct HeatingSweeps
{
    std::vector<Step> Frequencies;
    std::vector<Step> Ambients;
};

HeatingSweeps SweepsOf(std::span<const MeasuredRise> points);

/// How many times the least the most of all steps is; 1 for none.
double SpanRatio(const std::vector<Step>& steps);

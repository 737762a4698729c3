#include "fit/Crowds.h"

#include <cmath>
#include <map>
#include <utility>

/// Readings so near one another were meant to be one.
static constexpr double CellC = 2;
static constexpr double CellShare = 0.01;

namespace
{
/// The sums of the points of one cell.
class Crowd
{
public:
    void Add(const MeasuredCapacitance& point)
    {
        line = point.Line;
        volts += point.Volts;
        celsius += point.Celsius;
        inverse += 1 / point.Picofarads;
        inverseSquare += 1 / (point.Picofarads * point.Picofarads);
        ++count;
    }

    /// For any law f, Σ(f/C - 1)² is Weight·(f/Picofarads - 1)² and a constant.
    MeasuredCapacitance Middle() const
    {
        return {line, volts / count, celsius / count, inverse / inverseSquare,
                inverse * inverse / inverseSquare};
    }

private:
    std::size_t line = 0;
    double volts = 0;
    double celsius = 0;
    double inverse = 0;
    double inverseSquare = 0;
    double count = 0;
};
} // namespace

std::vector<MeasuredCapacitance> Uncrowded(std::span<const MeasuredCapacitance> points, double ratedVolts)
{
    if (points.size() <= UncrowdedPoints)
    {
        return {points.begin(), points.end()};
    }
    std::map<std::pair<double, double>, Crowd> crowds;
    for (const auto& point : points)
    {
        crowds[{std::floor(point.Celsius / CellC), std::floor(point.Volts / (CellShare * ratedVolts))}].Add(
            point);
    }
    std::vector<MeasuredCapacitance> fewer;
    fewer.reserve(crowds.size());
    for (const auto& [cell, crowd] : crowds)
    {
        fewer.push_back(crowd.Middle());
    }
    return fewer;
}

#include "stress/RippleVoltage.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{
constexpr double stepsInPeriod = 4096;

/// Adds the points of a straight piece behind its first, and the time integral of the charge over it.
double AddPiece(std::vector<ChargePoint>& points, const WavePoint& a, const WavePoint& b, double longest)
{
    const double length = b.Seconds - a.Seconds;
    const auto steps = static_cast<std::size_t>(std::max(1.0, std::ceil(length / longest)));
    const double step = length / static_cast<double>(steps);
    double area = 0;
    for (std::size_t i = 1; i <= steps; ++i)
    {
        const double current =
            a.Amperes + (b.Amperes - a.Amperes) * static_cast<double>(i) / static_cast<double>(steps);
        const ChargePoint& before = points.back();
        const double gained = step * (before.Amperes + current) / 2;
        area += step * (before.Charge + step * (2 * before.Amperes + current) / 6);
        points.push_back({current, before.Charge + gained});
    }
    return area;
}
} // namespace

std::vector<ChargePoint> ChargeOver(const Waveform& current, TimeSpan period, double meanCurrent)
{
    auto corners = current.Cut(period);
    std::ranges::for_each(corners, [=](WavePoint& corner) { corner.Amperes -= meanCurrent; });
    std::vector<ChargePoint> points = {{corners.front().Amperes, 0}};
    double area = 0;
    for (std::size_t i = 1; i < corners.size(); ++i)
    {
        area += AddPiece(points, corners[i - 1], corners[i], period.Length() / stepsInPeriod);
    }
    const double mean = area / period.Length();
    std::ranges::for_each(points, [=](ChargePoint& point) { point.Charge -= mean; });
    return points;
}

RippleVoltage RippleVoltageOf(std::span<const ChargePoint> period, double share, const StoredCharge& law,
                              double biasVolts, double ohms)
{
    const double biasCharge = law.ChargeAt(biasVolts);
    double lowest = std::numeric_limits<double>::infinity();
    double highest = -lowest;
    for (const ChargePoint& point : period)
    {
        const double volts = law.VoltageAt(biasCharge + share * point.Charge) + ohms * share * point.Amperes;
        lowest = std::min(lowest, volts);
        highest = std::max(highest, volts);
    }
    return {.PeakToPeak = highest - lowest, .Highest = highest};
}

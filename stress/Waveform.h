#pragma once

/// A current over time: straight between its points, with a jump where two points have one time.

#include <cstddef>
#include <span>
#include <vector>

/// One point, in s and A.
struct WavePoint
{
    double Seconds;
    double Amperes;

    bool operator==(const WavePoint&) const = default;
};

/// A stretch of time in s.
struct TimeSpan
{
    double From;
    double To;

    double Length() const { return To - From; }
    bool operator==(const TimeSpan&) const = default;
};

/// What a stretch of a current comes to, exact for the straight pieces.
struct StretchFigures
{
    double Mean;
    /// The mean of (current - `Mean`)².
    double MeanSquare;
    double Lowest;
    double Highest;
};

/// A current over time, with its charge. Times never fall; there are two points at least, of finite values,
/// and time goes by between the first and the last.
class Waveform
{
public:
    explicit Waveform(std::vector<WavePoint> waveform);

    std::span<const WavePoint> Points() const { return points; }
    TimeSpan Whole() const { return {points.front().Seconds, points.back().Seconds}; }

    /// The current at a time; behind a jump at that time.
    double At(double seconds) const;
    /// The figures of a stretch within the whole.
    StretchFigures FiguresOf(TimeSpan stretch) const;
    /// The mean currents of so many equal bins that make up the stretch.
    std::vector<double> BinMeans(TimeSpan stretch, std::size_t bins) const;
    /// The corners of a stretch: its points, with the currents at its ends.
    std::vector<WavePoint> Cut(TimeSpan stretch) const;

private:
    std::size_t PieceAt(double seconds, std::size_t from) const;
    double ChargeUntil(double seconds, std::size_t piece) const;

    std::vector<WavePoint> points;
    /// The charge in As from the first point to each.
    std::vector<double> charges;
};

#include "stress/Waveform.h"

#include <algorithm>
#include <utility>

namespace
{
double ChargeBetween(const WavePoint& a, const WavePoint& b)
{
    return (b.Seconds - a.Seconds) * (a.Amperes + b.Amperes) / 2;
}

/// The current on the straight line through two points of different times.
double Between(const WavePoint& a, const WavePoint& b, double seconds)
{
    return a.Amperes + (b.Amperes - a.Amperes) * ((seconds - a.Seconds) / (b.Seconds - a.Seconds));
}

bool IsEarlier(double seconds, const WavePoint& point)
{
    return seconds < point.Seconds;
}
} // namespace

Waveform::Waveform(std::vector<WavePoint> waveform)
    : points(std::move(waveform))
{
    charges.reserve(points.size());
    double charge = 0;
    for (std::size_t i = 0; i < points.size(); ++i)
    {
        charge += i == 0 ? 0 : ChargeBetween(points[i - 1], points[i]);
        charges.push_back(charge);
    }
}

/// The last point before which the time does not lie, but never the last of all; looked for from a point on,
/// in steps that double, since bins ask for times that follow each other.
std::size_t Waveform::PieceAt(double seconds, std::size_t from) const
{
    const std::size_t last = points.size() - 1;
    std::size_t step = 1;
    std::size_t low = from;
    while (low + step < last && points[low + step].Seconds <= seconds)
    {
        low += step;
        step *= 2;
    }
    const auto begin = points.begin() + static_cast<std::ptrdiff_t>(low);
    const auto end = points.begin() + static_cast<std::ptrdiff_t>(std::min(low + step, last));
    const auto next = std::upper_bound(begin, end, seconds, IsEarlier);
    return next == points.begin() ? 0 : static_cast<std::size_t>(next - points.begin()) - 1;
}

double Waveform::ChargeUntil(double seconds, std::size_t piece) const
{
    const WavePoint& a = points[piece];
    const WavePoint& b = points[piece + 1];
    if (seconds <= a.Seconds || seconds >= b.Seconds)
    {
        return seconds <= a.Seconds ? charges[piece] : charges[piece + 1];
    }
    return charges[piece] + ChargeBetween(a, {seconds, Between(a, b, seconds)});
}

double Waveform::At(double seconds) const
{
    const auto piece = PieceAt(seconds, 0);
    const WavePoint& a = points[piece];
    const WavePoint& b = points[piece + 1];
    if (seconds <= a.Seconds || seconds >= b.Seconds)
    {
        return seconds <= a.Seconds ? a.Amperes : b.Amperes;
    }
    return Between(a, b, seconds);
}

std::vector<WavePoint> Waveform::Cut(TimeSpan stretch) const
{
    const auto first = std::ranges::upper_bound(points, stretch.From, {}, &WavePoint::Seconds);
    const auto end = std::ranges::lower_bound(first, points.end(), stretch.To, {}, &WavePoint::Seconds);
    std::vector<WavePoint> corners;
    corners.reserve(static_cast<std::size_t>(end - first) + 2);
    corners.push_back({stretch.From, At(stretch.From)});
    corners.insert(corners.end(), first, end);
    // Before a jump at its very end the stretch is as the piece before leads there.
    const bool endsAtPoint = end != points.end() && end->Seconds == stretch.To;
    corners.push_back({stretch.To, endsAtPoint ? end->Amperes : At(stretch.To)});
    return corners;
}

StretchFigures Waveform::FiguresOf(TimeSpan stretch) const
{
    const auto corners = Cut(stretch);
    double charge = 0;
    for (std::size_t i = 1; i < corners.size(); ++i)
    {
        charge += ChargeBetween(corners[i - 1], corners[i]);
    }
    const double mean = charge / stretch.Length();
    double square = 0;
    for (std::size_t i = 1; i < corners.size(); ++i)
    {
        const double a = corners[i - 1].Amperes - mean;
        const double b = corners[i].Amperes - mean;
        square += (corners[i].Seconds - corners[i - 1].Seconds) * (a * a + a * b + b * b) / 3;
    }
    const auto [lowest, highest] = std::ranges::minmax_element(corners, {}, &WavePoint::Amperes);
    return {.Mean = mean,
            .MeanSquare = square / stretch.Length(),
            .Lowest = lowest->Amperes,
            .Highest = highest->Amperes};
}

std::vector<double> Waveform::BinMeans(TimeSpan stretch, std::size_t bins) const
{
    std::vector<double> means(bins);
    const double width = stretch.Length() / static_cast<double>(bins);
    std::size_t piece = PieceAt(stretch.From, 0);
    double before = ChargeUntil(stretch.From, piece);
    for (std::size_t i = 0; i < bins; ++i)
    {
        const double end = stretch.From + static_cast<double>(i + 1) * width;
        piece = PieceAt(end, piece);
        const double charge = ChargeUntil(end, piece);
        means[i] = (charge - before) / width;
        before = charge;
    }
    return means;
}

#include "stress/Spectrum.h"

#include "calc/Bounds.h"
#include "stress/Fourier.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <complex>
#include <numbers>

namespace
{
constexpr double binsPerSecond = 32e6;
constexpr std::size_t fewestBins = 4096;
constexpr std::size_t mostBins = std::size_t{1} << 22;

std::size_t BinsOf(TimeSpan stretch)
{
    const double wanted = std::ceil(stretch.Length() * binsPerSecond);
    return wanted >= double{mostBins}
               ? mostBins
               : std::max(fewestBins, std::bit_ceil(static_cast<std::size_t>(std::max(wanted, 1.0))));
}

/// What the mean over a bin leaves of a line.
double SincOf(double x)
{
    const double angle = std::numbers::pi * x;
    return std::sin(angle) / angle;
}

/// Gathers lines, and at last what none of them carries.
class SpectrumBuilder
{
public:
    explicit SpectrumBuilder(double fundamentalHz)
        : fundamental(fundamentalHz)
    {
    }

    void Add(const SpectralLine& line, std::size_t multiple)
    {
        spectrum.Moments.Add(line);
        carried += line.Square;
        if (multiple == 0)
        {
            slow.Add(line);
            return;
        }
        if (spectrum.Lines.empty() || multiple > lastMultiple)
        {
            spectrum.Lines.push_back({static_cast<double>(multiple) * fundamental, 0});
            lastMultiple = multiple;
        }
        spectrum.Lines.back().Square += line.Square;
    }

    Spectrum Finish(double meanSquare)
    {
        spectrum.Unresolved = std::max(0.0, meanSquare - carried);
        LoadMoments rest;
        rest.Add({HighestFrequencyHz, spectrum.Unresolved});
        spectrum.Moments.Above += rest;
        if (slow.Square > 0)
        {
            spectrum.Lines.insert(spectrum.Lines.begin(), {slow.Sine().Hertz, slow.Square});
        }
        return std::move(spectrum);
    }

private:
    double fundamental;
    Spectrum spectrum;
    double carried = 0;
    LoadMoments slow;
    std::size_t lastMultiple = 0;
};

/// sin θ/θ, and (sin θ - θ·cos θ)/θ², which a straight slope about its middle leaves.
struct PieceFactors
{
    double Even;
    double Odd;
};

PieceFactors FactorsOf(double angle)
{
    constexpr double small = 1e-3;
    const double square = angle * angle;
    if (std::abs(angle) < small)
    {
        return {.Even = 1 - square / 6, .Odd = angle / 3 * (1 - square / 10)};
    }
    return {.Even = std::sin(angle) / angle, .Odd = (std::sin(angle) - angle * std::cos(angle)) / square};
}

/// ∫ i·exp(-jωt) dt over a straight piece.
std::complex<double> PieceIntegral(const WavePoint& a, const WavePoint& b, double omega)
{
    const double length = b.Seconds - a.Seconds;
    const auto factors = FactorsOf(omega * length / 2);
    const std::complex<double> aboutMiddle((a.Amperes + b.Amperes) / 2 * factors.Even,
                                           -(b.Amperes - a.Amperes) / 2 * factors.Odd);
    return length * std::polar(1.0, -omega * (a.Seconds + b.Seconds) / 2) * aboutMiddle;
}
} // namespace

Spectrum SpectrumOf(const Waveform& current, TimeSpan stretch, std::size_t periods)
{
    const auto figures = current.FiguresOf(stretch);
    const auto bins = BinsOf(stretch);
    auto means = current.BinMeans(stretch, bins);
    std::ranges::for_each(means, [&](double& mean) { mean -= figures.Mean; });
    const auto sums = FourierSums(means);
    const double count = static_cast<double>(bins);
    const auto highest = static_cast<std::size_t>(HighestLineHz * stretch.Length() * (1 + 1e-9));
    const auto last = std::min(highest, bins / 2 - 1);
    SpectrumBuilder builder(static_cast<double>(periods) / stretch.Length());
    for (std::size_t k = 1; k <= last; ++k)
    {
        const auto index = static_cast<double>(k);
        const double amplitude = std::abs(sums[k]) / (count * SincOf(index / count));
        builder.Add({index / stretch.Length(), 2 * amplitude * amplitude}, (k + periods / 2) / periods);
    }
    return builder.Finish(figures.MeanSquare);
}

Spectrum ExactSpectrumOf(const Waveform& period)
{
    const auto points = period.Points();
    const double length = period.Whole().Length();
    const auto figures = period.FiguresOf(period.Whole());
    const auto last = static_cast<std::size_t>(HighestLineHz * length * (1 + 1e-9));
    SpectrumBuilder builder(1 / length);
    for (std::size_t k = 1; k <= last; ++k)
    {
        const double hertz = static_cast<double>(k) / length;
        std::complex<double> sum;
        for (std::size_t i = 1; i < points.size(); ++i)
        {
            sum += PieceIntegral(points[i - 1], points[i], 2 * std::numbers::pi * hertz);
        }
        builder.Add({hertz, 2 * std::norm(sum / length)}, k);
    }
    return builder.Finish(figures.MeanSquare);
}

#include "stress/PeriodSearch.h"

#include "stress/Fourier.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <functional>
#include <numeric>

namespace
{
constexpr std::size_t correlatedBins = 32768;
constexpr std::size_t comparedBins = 8192;
constexpr double leastHeight = 0.7;
constexpr std::size_t mostCandidates = 40;
constexpr double nearBest = 0.05;

/// A lag in bins at which the current is most like itself, and how much: 1 for exactly alike.
struct Peak
{
    std::size_t Lag;
    double Height;
};

double MeanOf(const std::vector<double>& values)
{
    return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

/// The sums of x_j·x_(j+lag), by way of the power spectrum of the values with as many zeros behind.
std::vector<double> Products(const std::vector<double>& values)
{
    std::vector<std::complex<double>> padded(2 * values.size());
    std::ranges::copy(values, padded.begin());
    Transform(padded);
    std::ranges::transform(padded, padded.begin(), [](const auto& sum) { return std::norm(sum); });
    Transform(padded);
    std::vector<double> products(values.size() / 2 + 2);
    const auto count = static_cast<double>(padded.size());
    std::ranges::transform(padded.begin(), padded.begin() + static_cast<std::ptrdiff_t>(products.size()),
                           products.begin(), [=](const auto& sum) { return sum.real() / count; });
    return products;
}

/// The autocorrelation up to half the stretch, each lag by the energy of the two pieces that overlap.
std::vector<double> Correlation(std::vector<double> values)
{
    const double mean = MeanOf(values);
    std::ranges::for_each(values, [=](double& value) { value -= mean; });
    auto correlation = Products(values);
    std::vector<double> energies(values.size() + 1);
    std::transform_inclusive_scan(values.begin(), values.end(), energies.begin() + 1, std::plus<>(),
                                  [](double value) { return value * value; });
    const double all = energies.back();
    for (std::size_t lag = 0; lag < correlation.size(); ++lag)
    {
        const double overlap = std::sqrt((all - energies[lag]) * energies[values.size() - lag]);
        correlation[lag] = overlap > 0 ? correlation[lag] / overlap : 0;
    }
    return correlation;
}

/// All peaks after the first zero, from the shortest lag up.
std::vector<Peak> PeaksOf(const Waveform& current, TimeSpan stretch)
{
    const auto correlation = Correlation(current.BinMeans(stretch, correlatedBins));
    std::vector<Peak> peaks;
    const auto zero = std::ranges::find_if(correlation, [](double height) { return height <= 0; });
    for (auto i = static_cast<std::size_t>(zero - correlation.begin()) + 1; i + 1 < correlation.size(); ++i)
    {
        if (correlation[i] > correlation[i - 1] && correlation[i] >= correlation[i + 1])
        {
            peaks.push_back({i, correlation[i]});
        }
    }
    return peaks;
}

double RootMeanSquare(const std::vector<double>& values, double mean)
{
    double sum = 0;
    for (const double value : values)
    {
        sum += (value - mean) * (value - mean);
    }
    return std::sqrt(sum / static_cast<double>(values.size()));
}

/// Where a function with one valley between two places is lowest, to a two-thousandth of their distance.
template <class Function> double LowestPlace(double from, double to, Function f)
{
    constexpr double golden = 0.6180339887498949;
    const double closeEnough = (to - from) / 2000;
    double left = to - golden * (to - from);
    double right = from + golden * (to - from);
    double atLeft = f(left);
    double atRight = f(right);
    while (to - from > closeEnough)
    {
        if (atLeft < atRight)
        {
            to = right;
            right = left;
            atRight = atLeft;
            left = to - golden * (to - from);
            atLeft = f(left);
        }
        else
        {
            from = left;
            left = right;
            atLeft = atRight;
            right = from + golden * (to - from);
            atRight = f(right);
        }
    }
    return (from + to) / 2;
}

/// The period near a lag, sharpened over so many periods; `reach` to either side.
double Sharpened(const Waveform& current, TimeSpan stretch, double period, double reach, double periods)
{
    const auto difference = [&](double candidate)
    { return DifferenceAfter(current, stretch, periods * candidate); };
    const double longest = stretch.Length() / periods * (1 - 1e-6);
    return LowestPlace(std::max(period - reach, period / 2), std::min(period + reach, longest), difference);
}

/// Over ever more periods an error of the period shows ever more.
double Refined(const Waveform& current, TimeSpan stretch, double period, double bin)
{
    constexpr double mostPeriods = 64;
    for (double periods = 4; periods <= mostPeriods && periods * period <= stretch.Length() / 2; periods *= 4)
    {
        period = Sharpened(current, stretch, period, bin / periods, periods);
    }
    return period;
}
} // namespace

double DifferenceAfter(const Waveform& current, TimeSpan stretch, double lag)
{
    const auto later = current.BinMeans({stretch.From + lag, stretch.To}, comparedBins);
    auto earlier = current.BinMeans({stretch.From, stretch.To - lag}, comparedBins);
    const double size = RootMeanSquare(later, MeanOf(later));
    std::ranges::transform(earlier, later, earlier.begin(), std::minus<>());
    return size > 0 ? RootMeanSquare(earlier, 0) / size : 0;
}

std::optional<FoundPeriod> FindPeriod(const Waveform& current, TimeSpan stretch)
{
    const double bin = stretch.Length() / double{correlatedBins};
    std::size_t tried = 0;
    for (const Peak& peak : PeaksOf(current, stretch))
    {
        if (peak.Height <= leastHeight || ++tried > mostCandidates)
        {
            continue;
        }
        const double lag = static_cast<double>(peak.Lag) * bin;
        const double period = Sharpened(current, stretch, lag, 2 * bin, 1);
        if (DifferenceAfter(current, stretch, period) <= RepeatTolerance)
        {
            const double refined = Refined(current, stretch, period, bin);
            return FoundPeriod{refined, DifferenceAfter(current, stretch, refined)};
        }
    }
    return std::nullopt;
}

std::optional<double> LikeliestPeriod(const Waveform& current, TimeSpan stretch)
{
    const auto peaks = PeaksOf(current, stretch);
    if (peaks.empty())
    {
        return std::nullopt;
    }
    const double best = std::ranges::max_element(peaks, {}, &Peak::Height)->Height;
    const auto shortest =
        std::ranges::find_if(peaks, [=](const Peak& peak) { return peak.Height >= best - nearBest; });
    return static_cast<double>(shortest->Lag) * stretch.Length() / double{correlatedBins};
}

#include "fit/CurrentFit.h"

#include "fit/LeastSquares.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace
{
constexpr double ReferenceC = 20;
constexpr double FirstHz = 1e4;
constexpr double LastHz = 1e6;
/// Where the three terms count alike, and temperatures that bring the numbers of the fit near 1.
constexpr double MiddleHz = 1e5;
constexpr double SpanC = 50;
/// Share of the heating from which a term's change with temperature shows.
constexpr double ShowingShare = 0.25;
/// A term that is small changes with temperature only if the law comes closer by this factor.
constexpr double WorthATerm = 0.9;

/// What a law does with a term: leaves it out, keeps it the same at all temperatures, lets it change.
enum class Part
{
    None,
    Still,
    Warm,
};
using Parts = std::array<Part, FrequencyTerms>;

std::array<double, FrequencyTerms> PowersOf(double hz)
{
    return {MiddleHz / hz, 1, hz / MiddleHz};
}

/// A law in the numbers of the fit, and how close it comes.
struct Trial
{
    CurrentFit Law;
    double Error = std::numeric_limits<double>::infinity();
};

double ErrorOf(const CurrentFit& law, std::span<const MeasuredRise> points)
{
    double sum = 0;
    for (const auto& point : points)
    {
        sum += std::pow(law.At(point.Hz, point.Celsius) * point.Load * point.Load / point.Rise - 1, 2);
    }
    return std::sqrt(sum / static_cast<double>(points.size()));
}

/// True where the law heats at every frequency and ambient temperature that can be asked for.
bool IsSound(const CurrentFit& law, double highestC)
{
    constexpr int Steps = 20;
    for (int i = 0; i <= Steps; ++i)
    {
        for (int j = 0; j <= Steps; ++j)
        {
            const double hz = FirstHz * std::pow(LastHz / FirstHz, static_cast<double>(i) / Steps);
            if (!(law.At(hz, ReferenceC + (highestC - ReferenceC) * j / Steps) > 0))
            {
                return false;
            }
        }
    }
    return true;
}

/// The law without any change over temperature.
CurrentFit FlatLaw(std::span<const MeasuredRise> points, bool byFrequency)
{
    std::vector<Row> basis;
    for (const auto& point : points)
    {
        Row& row = basis.emplace_back();
        for (const double power : PowersOf(point.Hz))
        {
            row.push_back(power * point.Load * point.Load / point.Rise);
        }
        row.resize(byFrequency ? FrequencyTerms : FrequencyTerms - 1);
    }
    const auto weights = NonNegativeLeastSquares(basis, Row(points.size(), 1.0));
    CurrentFit law;
    const auto powers = PowersOf(1);
    for (std::size_t k = 0; k < weights.size(); ++k)
    {
        law.Terms[k] = weights[k] * powers[k];
    }
    return law;
}

/// The law of some terms, the warm ones with their powers of t.
Trial WarmLaw(std::span<const MeasuredRise> points, const Parts& parts, std::size_t temperaturePowers)
{
    std::array<std::size_t, FrequencyTerms> counts{};
    std::ranges::transform(
        parts, counts.begin(),
        [=](Part part) -> std::size_t {
            return part == Part::None ? 0 : part == Part::Still ? 1 : 1 + temperaturePowers;
        });
    std::vector<Row> basis;
    for (const auto& point : points)
    {
        Row& row = basis.emplace_back();
        const auto powers = PowersOf(point.Hz);
        for (std::size_t k = 0; k < FrequencyTerms; ++k)
        {
            double value = powers[k] * point.Load * point.Load / point.Rise;
            for (std::size_t j = 0; j < counts[k]; ++j)
            {
                row.push_back(value);
                value *= (point.Celsius - ReferenceC) / SpanC;
            }
        }
    }
    const auto weights = LeastSquares(basis, Row(points.size(), 1.0), Row(points.size(), 1.0));
    Trial trial;
    const auto powers = PowersOf(1);
    auto next = weights.begin();
    for (std::size_t k = 0; k < FrequencyTerms; ++k)
    {
        trial.Law.Terms[k] = counts[k] > 0 ? *next++ * powers[k] : 0;
        trial.Law.Linear[k] = counts[k] > 1 ? *next++ * powers[k] / SpanC : 0;
        trial.Law.Square[k] = counts[k] > 2 ? *next++ * powers[k] / (SpanC * SpanC) : 0;
    }
    trial.Error = ErrorOf(trial.Law, points);
    return trial;
}

bool IsPlausible(const Trial& trial, double highestC)
{
    return std::ranges::all_of(trial.Law.Terms, [](double term) { return term >= 0; }) &&
           std::isfinite(trial.Error) && IsSound(trial.Law, highestC);
}

/// What is seen of each term in the flat law.
Parts ShowingParts(std::span<const MeasuredRise> points, const CurrentFit& flat)
{
    Parts parts{};
    for (std::size_t k = 0; k < FrequencyTerms; ++k)
    {
        const auto shows = [&](const MeasuredRise& point)
        {
            const double term = flat.Terms[k] / PowersOf(1)[k] * PowersOf(point.Hz)[k];
            return term >= ShowingShare * flat.At(point.Hz, ReferenceC);
        };
        parts[k] = flat.Terms[k] <= 0                   ? Part::None
                   : std::ranges::any_of(points, shows) ? Part::Warm
                                                        : Part::Still;
    }
    return parts;
}

/// Leaves out terms that hardly show and came out negative beside those that change; true if there were any.
bool DropNegative(const CurrentFit& law, Parts& parts)
{
    bool dropped = false;
    for (std::size_t k = 0; k < FrequencyTerms; ++k)
    {
        const bool isNegative = parts[k] == Part::Still && law.Terms[k] < 0;
        parts[k] = isNegative ? Part::None : parts[k];
        dropped = dropped || isNegative;
    }
    return dropped;
}

/// The best law with so many powers of t; nothing where none makes sense.
std::optional<CurrentFit> BestWarmLaw(std::span<const MeasuredRise> points, const CurrentFit& flat,
                                      std::size_t temperaturePowers, bool byFrequency, double highestC)
{
    auto parts = ShowingParts(points, flat);
    auto best = WarmLaw(points, parts, temperaturePowers);
    if (DropNegative(best.Law, parts))
    {
        best = WarmLaw(points, parts, temperaturePowers);
    }
    best.Error = IsPlausible(best, highestC) ? best.Error : std::numeric_limits<double>::infinity();
    for (std::size_t k = 0; k < (byFrequency ? FrequencyTerms : FrequencyTerms - 1); ++k)
    {
        for (const auto part : {Part::Still, Part::Warm})
        {
            auto more = parts;
            more[k] = part;
            const auto trial = part > parts[k] ? WarmLaw(points, more, temperaturePowers) : Trial{};
            if (trial.Error < WorthATerm * best.Error && IsPlausible(trial, highestC))
            {
                parts = more;
                best = trial;
            }
        }
    }
    return std::isfinite(best.Error) ? std::optional(best.Law) : std::nullopt;
}
} // namespace

double CurrentFit::At(double hz, double celsius) const
{
    const double t = celsius - ReferenceC;
    double sum = 0;
    double power = 1 / hz;
    for (std::size_t k = 0; k < FrequencyTerms; ++k)
    {
        sum += (Terms[k] + Linear[k] * t + Square[k] * t * t) * power;
        power *= hz;
    }
    return sum;
}

CurrentFit FitCurrent(std::span<const MeasuredRise> points, const CurrentTerms& terms, double highestC)
{
    const auto flat = FlatLaw(points, terms.ByFrequency);
    for (auto powers = terms.TemperaturePowers; powers > 0; --powers)
    {
        if (const auto law = BestWarmLaw(points, flat, powers, terms.ByFrequency, highestC))
        {
            return *law;
        }
    }
    return flat;
}

void WriteCurrentFit(const CurrentFit& fit, PartValues& data)
{
    for (std::size_t k = 0; k < FrequencyTerms; ++k)
    {
        data[Values::CurrentHeating.First + k] = fit.Terms[k];
        data[Values::CurrentHeatingOverTemperature.First + 2 * k] = fit.Linear[k];
        data[Values::CurrentHeatingOverTemperature.First + 2 * k + 1] = fit.Square[k];
    }
}

#include "stress/Stretch.h"

#include "stress/PeriodSearch.h"
#include "stress/PrefixedText.h"
#include "stress/Spectrum.h"
#include "stress/WaveformError.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{
/// Times that are read off a record, or typed, may be off by a rounding.
constexpr double rounding = 1e-9;
constexpr double fewPeriods = 10;
/// What of a period may be missing where it is counted, or be left over at the begin of a record.
constexpr double periodSlack = 1e-4;

std::string TimeText(double seconds)
{
    constexpr int digits = 5;
    return PrefixedText(seconds, "s", digits);
}

std::size_t WholePeriods(TimeSpan span, double period)
{
    return static_cast<std::size_t>(span.Length() / period + periodSlack);
}

TimeSpan LastPeriods(TimeSpan record, double period, std::size_t periods)
{
    const double from = record.To - static_cast<double>(periods) * period;
    return {from < record.From + periodSlack * period ? record.From : from, record.To};
}

TimeSpan LastShare(TimeSpan record, double share)
{
    return {record.To - share * record.Length(), record.To};
}

TimeSpan RecordOf(const Waveform& current, const StretchWishes& wishes)
{
    const TimeSpan whole = current.Whole();
    const TimeSpan record{wishes.From.value_or(whole.From), wishes.To.value_or(whole.To)};
    const double slack = rounding * whole.Length();
    if (record.From < whole.From - slack || record.From > whole.To || record.To > whole.To + slack)
    {
        throw WaveformError("the record runs from " + TimeText(whole.From) + " to " + TimeText(whole.To) +
                            ", which does not hold " + TimeText(record.From) + " to " + TimeText(record.To));
    }
    if (!(record.From < record.To))
    {
        throw WaveformError("from " + TimeText(record.From) + " to " + TimeText(record.To) +
                            " there is nothing to look at");
    }
    return {std::max(record.From, whole.From), std::min(record.To, whole.To)};
}

/// Compares the periods of a record, counted back from its end, with the last one.
class Comparison
{
public:
    Comparison(const Waveform& compared, TimeSpan span, double length)
        : current(compared)
        , record(span)
        , period(length)
        , available(WholePeriods(span, length))
        , bins(std::clamp(mostBins / std::max<std::size_t>(available, 1), fewestBins, finestBins))
        , last(BinsOf(0))
    {
        double sum = 0;
        for (const double value : last)
        {
            sum += value;
        }
        lastMean = sum / static_cast<double>(bins);
        lastSquare = SquareAbout(last, lastMean);
    }

    /// How many, the last included, repeat it.
    std::size_t Repeating() const
    {
        return CountWhile(
            [&](std::vector<double> values)
            {
                std::ranges::transform(values, last, values.begin(), std::minus<>());
                return SquareAbout(values, 0) <= RepeatTolerance * RepeatTolerance * lastSquare;
            });
    }

    /// How many have about the square of the last.
    std::size_t HeatingAlike() const
    {
        return CountWhile(
            [&](const std::vector<double>& values)
            {
                const double square = SquareAbout(values, lastMean);
                return std::abs(square - lastSquare) <= RepeatTolerance * lastSquare;
            });
    }

private:
    static constexpr std::size_t mostBins = 32768;
    static constexpr std::size_t fewestBins = 64;
    static constexpr std::size_t finestBins = 8192;

    static double SquareAbout(const std::vector<double>& values, double mean)
    {
        double sum = 0;
        for (const double value : values)
        {
            sum += (value - mean) * (value - mean);
        }
        return sum;
    }

    std::vector<double> BinsOf(std::size_t back) const
    {
        const double to = record.To - static_cast<double>(back) * period;
        return current.BinMeans({std::max(record.From, to - period), to}, bins);
    }

    template <class IsAlike> std::size_t CountWhile(IsAlike isAlike) const
    {
        std::size_t count = 1;
        while (count < available && isAlike(BinsOf(count)))
        {
            ++count;
        }
        return count;
    }

    const Waveform& current;
    TimeSpan record;
    double period;
    std::size_t available;
    std::size_t bins;
    std::vector<double> last;
    double lastMean = 0;
    double lastSquare = 0;
};

/// The period that repeats at the end of a record: in its last half, else in ever shorter ends of it that are
/// not almost currentless, else in all of it.
std::optional<double> RepeatingPeriod(const Waveform& current, TimeSpan record)
{
    constexpr double leastSquare = 0.1;
    constexpr double quarter = 0.25;
    const double square = current.FiguresOf(LastShare(record, 0.5)).MeanSquare;
    for (const double share : {1.0 / 2, 1.0 / 4, 1.0 / 8, 1.0 / 16, 1.0})
    {
        const auto span = LastShare(record, share);
        if (current.FiguresOf(span).MeanSquare < leastSquare * square)
        {
            continue;
        }
        const auto found = FindPeriod(current, span);
        if (found && (share >= quarter || span.Length() >= fewPeriods * found->Seconds))
        {
            return found->Seconds;
        }
    }
    return std::nullopt;
}

Stretch StretchOfPeriods(const Waveform& current, TimeSpan record, double period, std::size_t periods,
                         Likeness alike)
{
    const auto span = LastPeriods(record, period, periods);
    const double repeat = periods < 2 ? 0 : DifferenceAfter(current, span, period);
    return {.Span = span,
            .Record = record,
            .Period = span.Length() / static_cast<double>(periods),
            .Periods = periods,
            .Repeat = repeat,
            .Alike = alike};
}

/// The last half in four of whole periods that heat alike.
Stretch UnlikeStretch(const Waveform& current, TimeSpan record)
{
    constexpr std::size_t quarters = 4;
    constexpr double alike = 0.1;
    const auto half = LastShare(record, 0.5);
    const auto period = LikeliestPeriod(current, half);
    const std::size_t periods = period ? WholePeriods(half, *period) / quarters : 0;
    if (periods == 0)
    {
        throw WaveformError(
            "no two periods of the current are in the record; --whole takes it for one period");
    }
    std::array<double, quarters> squares{};
    const double length = static_cast<double>(periods) * *period;
    for (std::size_t i = 0; i < quarters; ++i)
    {
        const double to = record.To - static_cast<double>(i) * length;
        squares[i] = current.FiguresOf({to - length, to}).MeanSquare;
    }
    const auto [least, most] = std::ranges::minmax_element(squares);
    if (*most - *least > alike * *most)
    {
        throw WaveformError(
            "the current does not repeat, and does not heat evenly: give the stretch with --from "
            "and --to, or the period with --period");
    }
    return StretchOfPeriods(current, record, *period, quarters * periods, Likeness::HeatsAlike);
}

/// Where few of the periods of a record repeat, its last half has to heat as they do.
void CheckSettled(const Waveform& current, const Stretch& stretch)
{
    constexpr double smallShare = 0.2;
    constexpr double tolerance = 0.1;
    if (stretch.Share() >= smallShare)
    {
        return;
    }
    const auto periods = WholePeriods(LastShare(stretch.Record, 0.5), stretch.Period);
    const auto half = LastPeriods(stretch.Record, stretch.Period, std::max<std::size_t>(periods, 1));
    const auto counted = SpectrumOf(current, stretch.Span, stretch.Periods).Moments.Total();
    const auto before = SpectrumOf(current, half, periods).Moments.Total();
    const auto isAlike = [](double a, double b) { return std::abs(a - b) <= tolerance * b; };
    if (!isAlike(before.Square, counted.Square) || !isAlike(before.OverFrequency, counted.OverFrequency))
    {
        throw WaveformError(
            "the current is not settled: only the last " + std::to_string(stretch.Periods) + " of " +
            std::to_string(static_cast<std::size_t>(stretch.PeriodsInRecord())) +
            " periods repeat, and the last half of the record heats otherwise; simulate longer, or give the "
            "stretch with --from and --to, or the period with --period");
    }
}

Stretch FoundStretch(const Waveform& current, TimeSpan record, const StretchWishes& wishes)
{
    const auto period = RepeatingPeriod(current, record);
    const auto periods = period ? Comparison(current, record, *period).Repeating() : 0;
    if (periods < 2)
    {
        return UnlikeStretch(current, record);
    }
    auto stretch = StretchOfPeriods(current, record, *period, periods, Likeness::Repeats);
    if (!wishes.Periods)
    {
        CheckSettled(current, stretch);
    }
    return stretch;
}

Stretch GivenStretch(const Waveform& current, TimeSpan record, double period)
{
    if (WholePeriods(record, period) == 0)
    {
        throw WaveformError("a period of " + TimeText(period) + " is longer than the record of " +
                            TimeText(record.Length()));
    }
    const Comparison comparison(current, record, period);
    const auto repeating = comparison.Repeating();
    if (repeating > 1)
    {
        return StretchOfPeriods(current, record, period, repeating, Likeness::Repeats);
    }
    const auto alike = comparison.HeatingAlike();
    return StretchOfPeriods(current, record, period, alike,
                            alike > 1 ? Likeness::HeatsAlike : Likeness::Repeats);
}

Stretch AsWished(const Waveform& current, TimeSpan record, const StretchWishes& wishes)
{
    if (wishes.IsWhole)
    {
        return StretchOfPeriods(current, record, record.Length(), 1, Likeness::AsAsked);
    }
    auto stretch =
        wishes.Period ? GivenStretch(current, record, *wishes.Period) : FoundStretch(current, record, wishes);
    stretch.IsCountAsked = wishes.Periods.has_value();
    if (!wishes.Periods || *wishes.Periods == stretch.Periods)
    {
        return stretch;
    }
    if (*wishes.Periods > WholePeriods(record, stretch.Period))
    {
        throw WaveformError("the record holds less than " + std::to_string(*wishes.Periods) + " periods of " +
                            TimeText(stretch.Period));
    }
    const bool areAlike = *wishes.Periods < stretch.Periods;
    auto asked = StretchOfPeriods(current, record, stretch.Period, *wishes.Periods,
                                  areAlike ? stretch.Alike : Likeness::AsAsked);
    asked.IsCountAsked = true;
    return asked;
}
} // namespace

Stretch StretchOf(const Waveform& current, const StretchWishes& wishes)
{
    const auto record = RecordOf(current, wishes);
    if (!(current.FiguresOf(record).MeanSquare > 0))
    {
        throw WaveformError("the current does not change, so nothing heats");
    }
    const auto stretch = AsWished(current, record, wishes);
    if (stretch.Span.Length() > LongestStretch * (1 + rounding))
    {
        throw WaveformError("a stretch of " + TimeText(stretch.Span.Length()) +
                            " is too long: at most 1 s counts; give less with --from and --to, or --periods");
    }
    return stretch;
}

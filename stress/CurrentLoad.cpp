#include "stress/CurrentLoad.h"

#include <algorithm>
#include <cmath>

namespace
{
/// The record without every second row; rows of one time are one, so that jumps stay jumps.
Waveform WithoutEverySecond(const Waveform& current)
{
    const auto points = current.Points();
    std::vector<WavePoint> kept;
    bool isKept = true;
    for (std::size_t i = 0; i < points.size(); ++i)
    {
        const bool isNewTime = i > 0 && points[i].Seconds != points[i - 1].Seconds;
        isKept = isNewTime ? !isKept : isKept;
        if (isKept || points[i].Seconds == points.back().Seconds)
        {
            kept.push_back(points[i]);
        }
    }
    return Waveform(std::move(kept));
}

std::size_t PointsIn(const Waveform& current, TimeSpan stretch)
{
    const auto points = current.Points();
    const auto first = std::ranges::lower_bound(points, stretch.From, {}, &WavePoint::Seconds);
    const auto end = std::ranges::upper_bound(points, stretch.To, {}, &WavePoint::Seconds);
    return static_cast<std::size_t>(end - first);
}
} // namespace

double RecordedLoad::StepErrorOf(const LoadMoments& all) const
{
    return std::max(std::abs(Thinned.Square / all.Square - 1),
                    std::abs(Thinned.OverFrequency / all.OverFrequency - 1));
}

double CurrentLoad::Arms() const
{
    return std::sqrt(Figures.MeanSquare);
}

double CurrentLoad::Peak() const
{
    return std::max(Figures.Highest - Figures.Mean, Figures.Mean - Figures.Lowest);
}

SpectralLine CurrentLoad::MainLine() const
{
    const auto main = std::ranges::max_element(Lines.Lines, {}, &SpectralLine::Square);
    return main == Lines.Lines.end() ? SpectralLine{.Hertz = HighestLineHz, .Square = Lines.Unresolved}
                                     : *main;
}

CurrentLoad LoadOfRecord(const Waveform& current, const StretchWishes& wishes)
{
    const auto stretch = StretchOf(current, wishes);
    const auto figures = current.FiguresOf(stretch.Span);
    const auto thinned = SpectrumOf(WithoutEverySecond(current), stretch.Span, stretch.Periods);
    return {.Figures = figures,
            .Lines = SpectrumOf(current, stretch.Span, stretch.Periods),
            .Period = ChargeOver(current, stretch.LastPeriod(), figures.Mean),
            .PeriodLength = stretch.Period,
            .Shape = EnvelopeOf(current, stretch.LastPeriod()),
            .Record = RecordedLoad{.Counted = stretch,
                                   .Points = PointsIn(current, stretch.Span),
                                   .Thinned = thinned.Moments.Total(),
                                   .Course = EnvelopeOf(current, current.Whole())}};
}

CurrentLoad LoadOfConverter(const Converter& converter, ConverterSide side)
{
    const auto current = CurrentOf(converter, side);
    const auto period = current.Whole();
    const auto figures = current.FiguresOf(period);
    return {.Figures = figures,
            .Lines = ExactSpectrumOf(current),
            .Period = ChargeOver(current, period, figures.Mean),
            .PeriodLength = period.Length(),
            .Shape = EnvelopeOf(current, period)};
}

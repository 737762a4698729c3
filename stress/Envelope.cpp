#include "stress/Envelope.h"

#include <algorithm>

static void Widen(Envelope::Piece& piece, double amperes)
{
    piece.Lowest = std::min(piece.Lowest, amperes);
    piece.Highest = std::max(piece.Highest, amperes);
}

Envelope EnvelopeOf(const Waveform& current, TimeSpan stretch, std::size_t pieces)
{
    Envelope envelope{.Span = stretch};
    const double width = stretch.Length() / static_cast<double>(pieces);
    double before = current.At(stretch.From);
    for (std::size_t i = 1; i <= pieces; ++i)
    {
        const double end =
            current.At(i == pieces ? stretch.To : stretch.From + static_cast<double>(i) * width);
        envelope.Pieces.push_back({std::min(before, end), std::max(before, end)});
        before = end;
    }
    const auto points = current.Points();
    for (auto point = std::ranges::lower_bound(points, stretch.From, {}, &WavePoint::Seconds);
         point != points.end() && point->Seconds <= stretch.To; ++point)
    {
        const auto piece = static_cast<std::size_t>((point->Seconds - stretch.From) / width);
        Widen(envelope.Pieces[std::min(piece, pieces - 1)], point->Amperes);
    }
    return envelope;
}

#pragma once

/// A current thinned to what a picture can show of it.

#include "stress/Waveform.h"

#include <cstddef>
#include <vector>

/// The lowest and highest current of equal pieces of a stretch, in A.
struct Envelope
{
    struct Piece
    {
        double Lowest;
        double Highest;
    };
    TimeSpan Span{};
    std::vector<Piece> Pieces = {};
};

/// So many pieces are finer than a picture is wide.
inline constexpr std::size_t EnvelopePieces = 1000;

/// The envelope of a stretch within the whole; no point of it is lost, and neighbours touch.
Envelope EnvelopeOf(const Waveform& current, TimeSpan stretch, std::size_t pieces = EnvelopePieces);

/// A current thinned for a picture.

#include "stress/Envelope.h"

#include <gtest/gtest.h>

static const Waveform saw({{0, 0}, {1, 4}, {1, -2}, {3, 2}, {4, 2}});

TEST(Envelope, HoldsTheExtremesOfEachPiece)
{
    const auto envelope = EnvelopeOf(saw, {0, 4}, 4);
    ASSERT_EQ(envelope.Pieces.size(), 4U);
    EXPECT_DOUBLE_EQ(envelope.Pieces[0].Lowest, -2);
    EXPECT_DOUBLE_EQ(envelope.Pieces[1].Highest, 4);
    EXPECT_DOUBLE_EQ(envelope.Pieces[2].Lowest, 0);
    EXPECT_DOUBLE_EQ(envelope.Pieces[2].Highest, 2);
    EXPECT_DOUBLE_EQ(envelope.Pieces[3].Lowest, 2);
    EXPECT_DOUBLE_EQ(envelope.Pieces[3].Highest, 2);
}

TEST(Envelope, IsStraightBetweenPoints)
{
    const auto envelope = EnvelopeOf(saw, {0.25, 0.75}, 2);
    EXPECT_DOUBLE_EQ(envelope.Pieces[0].Lowest, 1);
    EXPECT_DOUBLE_EQ(envelope.Pieces[0].Highest, 2);
    EXPECT_DOUBLE_EQ(envelope.Pieces[1].Lowest, 2);
    EXPECT_DOUBLE_EQ(envelope.Pieces[1].Highest, 3);
}

TEST(Envelope, LosesNoPeakBetweenItsEdges)
{
    const Waveform spike({{0, 0}, {0.49, 0}, {0.5, 7}, {0.51, 0}, {1, 0}});
    const auto envelope = EnvelopeOf(spike, {0, 1}, 1);
    EXPECT_DOUBLE_EQ(envelope.Pieces[0].Highest, 7);
    EXPECT_DOUBLE_EQ(envelope.Pieces[0].Lowest, 0);
}

/// The cursors of a chart view: where they stand after what the user does.

#include "chart/layout/ChartCursors.h"

#include "tests/Seed.h"

#include <gtest/gtest.h>

#include <random>

TEST(ChartCursors, AloneAFollowsThePointer)
{
    ChartCursors cursors;
    cursors.Start(25);
    EXPECT_EQ(cursors.A(), 25);
    cursors.Follow(30);
    EXPECT_EQ(cursors.A(), 30);
    EXPECT_FALSE(cursors.B());
    EXPECT_FALSE(cursors.IsPinnedA());
}

TEST(ChartCursors, PinnedOnceBFollowsThenBothStayThenBIsFreeAgain)
{
    ChartCursors cursors;
    cursors.Start(25);
    cursors.Pin(20);
    EXPECT_EQ(cursors.A(), 20);
    EXPECT_EQ(cursors.B(), 20);
    cursors.Follow(85);
    EXPECT_EQ(cursors.A(), 20);
    EXPECT_EQ(cursors.B(), 85);
    EXPECT_FALSE(cursors.IsPinnedB());
    cursors.Pin(90);
    EXPECT_TRUE(cursors.IsPinnedB());
    cursors.Follow(100);
    EXPECT_EQ(cursors.B(), 90);
    cursors.Pin(110);
    EXPECT_FALSE(cursors.IsPinnedB());
    EXPECT_EQ(cursors.B(), 110);
    cursors.Follow(60);
    EXPECT_EQ(cursors.B(), 60);
    EXPECT_EQ(cursors.A(), 20);
}

TEST(ChartCursors, EscapeFreesBThenAThenNothing)
{
    ChartCursors cursors;
    cursors.Start(25);
    cursors.Pin(20);
    cursors.Pin(90);
    EXPECT_TRUE(cursors.Free());
    EXPECT_EQ(cursors.B(), 90);
    EXPECT_FALSE(cursors.IsPinnedB());
    EXPECT_TRUE(cursors.Free());
    EXPECT_FALSE(cursors.B());
    EXPECT_EQ(cursors.A(), 20);
    EXPECT_FALSE(cursors.Free());
}

TEST(ChartCursors, ATypedNumberMovesAndPins)
{
    ChartCursors cursors;
    cursors.Start(25);
    cursors.Jump(1.5);
    EXPECT_TRUE(cursors.IsPinnedA());
    EXPECT_EQ(cursors.A(), 1.5);
    cursors.Jump(2.5);
    EXPECT_TRUE(cursors.IsPinnedB());
    cursors.Jump(3.5);
    EXPECT_TRUE(cursors.IsPinnedB());
    EXPECT_EQ(cursors.A(), 1.5);
    EXPECT_EQ(cursors.B(), 3.5);
}

TEST(ChartCursors, KeysMoveBAlsoWhereItIsPinned)
{
    ChartCursors cursors;
    cursors.Start(25);
    cursors.MoveTo(26);
    EXPECT_EQ(cursors.A(), 26);
    cursors.Pin(26);
    cursors.Pin(30);
    cursors.MoveTo(31);
    EXPECT_EQ(cursors.Moving(), 31);
    EXPECT_TRUE(cursors.IsPinnedB());
    EXPECT_EQ(cursors.A(), 26);
}

TEST(ChartCursors, ADoubleClickTakesItsFirstPinBack)
{
    ChartCursors cursors;
    cursors.Start(25);
    cursors.Pin(40);
    cursors.Pin(50);
    cursors.TakePinBack();
    EXPECT_EQ(cursors.A(), 40);
    EXPECT_EQ(cursors.B(), 40);
    EXPECT_FALSE(cursors.IsPinnedB());
}

namespace
{
/// The same cursors told as a list of pinned places and a free one.
struct PlainCursors
{
    std::vector<double> Pinned;
    double Free = 0;

    void Pin(double x)
    {
        Pinned.size() == 2 ? Pinned.pop_back() : Pinned.push_back(x);
        Free = x;
    }
    void Follow(double x)
    {
        if (Pinned.size() < 2)
        {
            Free = x;
        }
    }
    void MoveTo(double x)
    {
        if (Pinned.size() == 2)
        {
            Pinned.back() = x;
        }
        Free = x;
    }
    void Unpin()
    {
        if (Pinned.empty())
        {
            return;
        }
        Free = Pinned.back();
        Pinned.pop_back();
    }
    double A() const { return Pinned.empty() ? Free : Pinned.front(); }
    std::optional<double> B() const
    {
        return Pinned.empty() ? std::nullopt : std::optional(Pinned.size() == 2 ? Pinned.back() : Free);
    }
};
} // namespace

TEST(ChartCursors, FollowAPlainModelThroughRandomClicksAndKeys)
{
    std::mt19937 random(TestSeed(7));
    const auto number = [&](int below) { return std::uniform_int_distribution(0, below - 1)(random); };
    ChartCursors cursors;
    PlainCursors plain;
    cursors.Start(0);
    for (int action = 0; action < 20000; ++action)
    {
        const double x = number(1000);
        switch (number(5))
        {
        case 0:
            cursors.Pin(x);
            plain.Pin(x);
            break;
        case 1:
            cursors.MoveTo(x);
            plain.MoveTo(x);
            break;
        case 2:
            EXPECT_EQ(cursors.Free(), !plain.Pinned.empty());
            plain.Unpin();
            break;
        default:
            cursors.Follow(x);
            plain.Follow(x);
        }
        ASSERT_EQ(cursors.A(), plain.A()) << action;
        ASSERT_EQ(cursors.B(), plain.B()) << action;
        ASSERT_EQ(cursors.IsPinnedA(), !plain.Pinned.empty()) << action;
        ASSERT_EQ(cursors.IsPinnedB(), plain.Pinned.size() == 2) << action;
    }
}

static ChartRecord LineOfX(float first, float step)
{
    ChartRecord line;
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        line.XData[i] = first + static_cast<float>(i) * step;
    }
    return line;
}

TEST(SteppedX, GoesFromPointToPointAndStopsAtTheEnds)
{
    const ChartRecord line = LineOfX(100, 2);
    EXPECT_EQ(SteppedX(line, 110, 1), 112);
    EXPECT_EQ(SteppedX(line, 110, -1), 108);
    EXPECT_EQ(SteppedX(line, 111, 1), 112);
    EXPECT_EQ(SteppedX(line, 111, -1), 110);
    EXPECT_EQ(SteppedX(line, 110, 10), 130);
    EXPECT_EQ(SteppedX(line, 110, -10), 100);
    EXPECT_EQ(SteppedX(line, 100, -1), 100);
    EXPECT_EQ(SteppedX(line, 498, 1), 498);
    EXPECT_EQ(SteppedX(line, 0, 1), 100);
    EXPECT_EQ(SteppedX(line, 0, -1), 100);
    EXPECT_EQ(SteppedX(line, 1000, -1), 498);
}

TEST(ShortestNumber, IsTheRoundestWithinTheBounds)
{
    EXPECT_EQ(ShortestNumberBetween(24.48, 24.57), 24.5);
    EXPECT_EQ(ShortestNumberBetween(24.6, 25.3), 25);
    EXPECT_EQ(ShortestNumberBetween(-0.4, 0.3), 0);
    EXPECT_EQ(ShortestNumberBetween(-55.04, -54.91), -55);
    EXPECT_EQ(ShortestNumberBetween(98.9, 101.3), 100);
    EXPECT_EQ(ShortestNumberBetween(0.1234, 0.1243), 0.124);
    EXPECT_EQ(ShortestNumberBetween(3, 3), 3);
}

TEST(ShortestNumber, AlwaysStandsWithinTheBounds)
{
    std::mt19937 random(TestSeed(8));
    std::uniform_real_distribution<double> place(-200, 1000);
    std::uniform_real_distribution<double> width(1e-4, 3);
    for (int i = 0; i < 20000; ++i)
    {
        const double lowest = place(random);
        const double highest = lowest + width(random);
        const double shortest = ShortestNumberBetween(lowest, highest);
        ASSERT_GE(shortest, lowest);
        ASSERT_LE(shortest, highest);
    }
}

/// What is told of rows that are too coarse, against sums worked out by hand.

#include "stress/CurrentLoad.h"
#include "tests/stress/Waves.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace
{
constexpr double hertz = 500e3;

/// 300 periods, so many rows each.
CurrentLoad LoadOf(const Shape& shape, double rowsAPeriod)
{
    return LoadOfRecord(EvenRows(shape, 300 / hertz, 1 / hertz / rowsAPeriod), {});
}

/// The share of the square that is left without every second row.
double SquareLeft(const CurrentLoad& load)
{
    return load.Record->Thinned.Square / load.Lines.Moments.Total().Square;
}

/// The mean square of a sine of 1 A through straight lines between so many rows a period. A line from sin a
/// to sin b has (sin²a + sin a·sin b + sin²b)/3, whose mean over all lines is (1 + cos(b - a)/2)/3.
double SquareOfSine(double rowsAPeriod)
{
    return (1 + std::cos(2 * std::numbers::pi / rowsAPeriod) / 2) / 3;
}

TEST(StepErrorOf, OfASineIsThatOfHalfAsManyRows)
{
    for (const double rows : {10, 20, 50, 200})
    {
        const auto load = LoadOf(Sine(1, hertz), rows);
        EXPECT_NEAR(load.Lines.Moments.Total().Square, SquareOfSine(rows), 1e-5) << rows;
        EXPECT_NEAR(SquareLeft(load), SquareOfSine(rows / 2) / SquareOfSine(rows), 1e-5) << rows;
    }
}

TEST(StepErrorOf, OfATriangleIsLargeWhereACornerIsLeftOut)
{
    // Of ten rows the corners at 0 and 0.5 are two. Every second leaves -1, -0.2, 0.6, 0.6, -0.2, -1: its
    // mean is -0.04, and its mean square (0.4133 + 0.0933 + 0.36 + 0.0933 + 0.4133)/5 - 0.0016 = 0.27307
    // instead of 1/3.
    const auto load = LoadOf(Triangle(hertz), 10);
    EXPECT_NEAR(load.Lines.Moments.Total().Square, 1.0 / 3, 1e-5);
    EXPECT_NEAR(load.Record->Thinned.Square, 0.27307, 1e-4);
    EXPECT_NEAR(SquareLeft(load), 0.8192, 3e-4);
    EXPECT_NEAR(load.Record->StepErrorOf(load.Lines.Moments.Total()), 0.18, 0.01);
}

TEST(StepErrorOf, OfATriangleIsNoneWhereAllCornersStay)
{
    const auto load = LoadOf(Triangle(hertz), 8);
    EXPECT_NEAR(SquareLeft(load), 1, 1e-6);
    EXPECT_NEAR(load.Record->StepErrorOf(load.Lines.Moments.Total()), 0, 1e-6);
}

TEST(StepErrorOf, OfEdgesIsThatOfEdgesTwiceAsLong)
{
    // From 0 to 1 within the first of 64 rows, back to 0 from row 19 to row 20. An edge of length e has the
    // square e/3 and the charge e/2; without every second row both edges are 2/64 long, and the second begins
    // at row 18.
    const auto load = LoadOf(Trapezoid(hertz), 64);
    EXPECT_NEAR(load.Lines.Moments.Total().Square, (18 + 2.0 / 3) / 64 - std::pow(19.0 / 64, 2), 1e-4);
    EXPECT_NEAR(load.Record->Thinned.Square, (16 + 4.0 / 3) / 64 - std::pow(18.0 / 64, 2), 1e-4);
}

TEST(StepErrorOf, TakesRowsOfOneTimeForOne)
{
    // A wave with jumps, each two rows of one time, between which the current stands still: without every
    // second time the jumps at 0 and 0.5 stay.
    const auto load =
        LoadOfRecord(Repeated({{0, -1}, {0, 1}, {0.25, 1}, {0.5, 1}, {0.5, -1}, {0.75, -1}}, 2e-6, 300), {});
    EXPECT_NEAR(load.Lines.Moments.Total().Square, 1, 1e-4);
    EXPECT_NEAR(SquareLeft(load), 1, 1e-6);
}
} // namespace

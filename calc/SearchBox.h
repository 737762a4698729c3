#pragma once

/// The least value of a function over a rectangle where no closed form tells it.

#include "calc/TurningPoints.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

/// A place of a rectangle and the value there.
struct LeastFound
{
    double X = 0;
    double Y = 0;
    double Value = std::numeric_limits<double>::infinity();
};

/// `count` places from one end to the other, both included; one of a span of no width.
inline std::vector<double> EvenNodes(double from, double to, int count)
{
    if (from == to)
    {
        return {from};
    }
    std::vector<double> nodes;
    for (int i = 0; i < count; ++i)
    {
        nodes.push_back(i + 1 == count ? to : from + (to - from) * i / (count - 1));
    }
    return nodes;
}

/// Where between two ends a function is least, by golden section.
template <class Function> double LeastBetween(const Function& function, double from, double to)
{
    const double golden = (std::sqrt(5.0) - 1) / 2;
    double left = to - golden * (to - from);
    double right = from + golden * (to - from);
    double atLeft = function(left);
    double atRight = function(right);
    for (int step = 0; step < 40; ++step)
    {
        const bool isLeft = atLeft <= atRight;
        (isLeft ? to : from) = isLeft ? right : left;
        (isLeft ? right : left) = isLeft ? left : right;
        (isLeft ? atRight : atLeft) = isLeft ? atLeft : atRight;
        const double next = isLeft ? to - golden * (to - from) : from + golden * (to - from);
        (isLeft ? left : right) = next;
        (isLeft ? atLeft : atRight) = function(next);
    }
    return std::midpoint(from, to);
}

/// One side of a box: its ends, and how far apart the places lie that have been tried.
struct SearchSide
{
    double From = 0;
    double To = 0;
    double Step = 0;
};

/// A place of a box of so many sides and the value there.
template <std::size_t Sides> struct LeastInBox
{
    std::array<double, Sides> At{};
    double Value = std::numeric_limits<double>::infinity();
};

/// Refines the least of a function from places that lie a step apart: golden section along each side in turn,
/// three times, each time over a quarter of the steps.
template <std::size_t Sides, class Function>
LeastInBox<Sides> RefinedIn(const Function& function, LeastInBox<Sides> best,
                            std::array<SearchSide, Sides> sides)
{
    const auto refine = [&](std::size_t i)
    {
        auto at = best.At;
        const auto along = [&](double x)
        {
            at[i] = x;
            return function(at);
        };
        const double x = LeastBetween(along, std::max(sides[i].From, best.At[i] - sides[i].Step),
                                      std::min(sides[i].To, best.At[i] + sides[i].Step));
        if (const double value = along(x); value < best.Value)
        {
            best = {.At = at, .Value = value};
        }
        sides[i].Step /= 4;
    };
    for (int round = 0; round < 3; ++round)
    {
        for (std::size_t i = 0; i < Sides; ++i)
        {
            if (sides[i].From < sides[i].To)
            {
                refine(i);
            }
        }
    }
    return best;
}

/// The same over a rectangle, whose places have been tried `steps` apart.
template <class Function>
LeastFound Refined(const Function& function, LeastFound best, std::pair<double, double> xEnds,
                   std::pair<double, double> yEnds, std::pair<double, double> steps)
{
    const auto found = RefinedIn<2>([&](const auto& at) { return function(at[0], at[1]); },
                                    {.At = {best.X, best.Y}, .Value = best.Value},
                                    {SearchSide{xEnds.first, xEnds.second, steps.first},
                                     SearchSide{yEnds.first, yEnds.second, steps.second}});
    return {found.At[0], found.At[1], found.Value};
}

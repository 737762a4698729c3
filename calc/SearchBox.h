#pragma once

/// The least value of a function over a rectangle where no closed form tells it.

#include "calc/TurningPoints.h"

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

/// Refines the least of a function from nodes that lie `stepX` and `stepY` apart: golden section along either
/// side in turn, three times, each time over a quarter of the steps.
template <class Function>
LeastFound Refined(const Function& function, LeastFound best, std::pair<double, double> xEnds,
                   std::pair<double, double> yEnds, std::pair<double, double> steps)
{
    const auto take = [&](double x, double y)
    {
        const double value = function(x, y);
        best = value < best.Value ? LeastFound{x, y, value} : best;
    };
    for (int round = 0; round < 3; ++round)
    {
        take(LeastBetween([&](double x) { return function(x, best.Y); },
                          std::max(xEnds.first, best.X - steps.first),
                          std::min(xEnds.second, best.X + steps.first)),
             best.Y);
        take(best.X, LeastBetween([&](double y) { return function(best.X, y); },
                                  std::max(yEnds.first, best.Y - steps.second),
                                  std::min(yEnds.second, best.Y + steps.second)));
        steps.first /= 4;
        steps.second /= 4;
    }
    return best;
}

#include "chart/layout/ChartCursors.h"

#include <algorithm>
#include <cmath>

void ChartCursors::Start(double x)
{
    state = {.a = x, .b = x, .pins = 0};
    beforePin = state;
}

void ChartCursors::Follow(double x)
{
    if (state.pins < 2)
    {
        MoveTo(x);
    }
}

void ChartCursors::MoveTo(double x)
{
    (state.pins == 0 ? state.a : state.b) = x;
}

void ChartCursors::Pin(double x)
{
    beforePin = state;
    MoveTo(x);
    state.b = x;
    state.pins = state.pins == 2 ? 1 : state.pins + 1;
}

void ChartCursors::Jump(double x)
{
    state.pins == 2 ? MoveTo(x) : Pin(x);
}

bool ChartCursors::Free()
{
    if (state.pins == 0)
    {
        return false;
    }
    --state.pins;
    return true;
}

double SteppedX(const ChartRecord& line, double from, int points)
{
    const auto& xs = line.XData;
    const auto at = static_cast<float>(from);
    // Between two points the next one on either side is one step away.
    const auto start = points > 0 ? std::ranges::upper_bound(xs, at) - xs.begin() - 1
                                  : std::ranges::lower_bound(xs, at) - xs.begin();
    const auto last = static_cast<std::ptrdiff_t>(xs.size()) - 1;
    return xs[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(start + points, 0, last))];
}

/// The multiple of a power of ten that is nearest to a value.
static double MultipleNear(double value, int exponent)
{
    const double power = std::pow(10.0, std::abs(exponent));
    return exponent < 0 ? std::round(value * power) / power : std::round(value / power) * power;
}

double ShortestNumberBetween(double lowest, double highest)
{
    const double middle = (lowest + highest) / 2;
    if (!(highest > lowest))
    {
        return middle;
    }
    // From the largest power of ten that the bounds may hold a multiple of.
    int exponent = static_cast<int>(std::ceil(std::log10(std::max(std::abs(lowest), std::abs(highest)))));
    constexpr int mostDigits = 15;
    for (const int least = exponent - mostDigits; exponent > least; --exponent)
    {
        const double nearest = MultipleNear(middle, exponent);
        if (nearest >= lowest && nearest <= highest)
        {
            return nearest;
        }
    }
    return middle;
}

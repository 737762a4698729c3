#include "chart/layout/FittingDecades.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

/// Digits before a power of ten that may be labelled.
using Digits = std::span<const int>;

static bool IsInside(double value, const FittingScale& scale)
{
    return value >= scale.Low * (1 - FittingScale::Tolerance) &&
           value <= scale.High * (1 + FittingScale::Tolerance);
}

/// The powers of ten at or below the ends.
static int FirstDecade(const FittingScale& scale)
{
    return static_cast<int>(std::floor(std::log10(scale.Low) + FittingScale::Tolerance));
}

static int LastDecade(const FittingScale& scale)
{
    return static_cast<int>(std::floor(std::log10(scale.High) + FittingScale::Tolerance));
}

static std::string LabelOf(int digit, int exponent)
{
    return FittingLabel(digit * std::pow(10.0, exponent), std::max(0, -exponent));
}

static double WidestLabel(Digits digits, const FittingScale& scale)
{
    double widest = 0;
    for (int exponent = FirstDecade(scale); exponent <= LastDecade(scale); ++exponent)
    {
        for (const int digit : digits)
        {
            widest = std::max(widest, scale.RoomOf(LabelOf(digit, exponent)));
        }
    }
    return widest;
}

static bool StandsClear(Digits digits, const FittingScale& scale)
{
    const double decade = scale.Length / scale.Decades();
    const double widest = WidestLabel(digits, scale);
    for (std::size_t i = 0; i < digits.size(); ++i)
    {
        const double next = i + 1 < digits.size() ? digits[i + 1] : 10;
        if (std::log10(next / digits[i]) * decade < widest)
        {
            return false;
        }
    }
    return true;
}

static Digits LabelledDigits(const FittingScale& scale)
{
    static constexpr std::array all = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    static constexpr std::array some = {1, 2, 5};
    // A range of a decade holds one of each.
    static constexpr std::array two = {1, 3};
    for (const Digits digits : {Digits(all), Digits(some)})
    {
        if (StandsClear(digits, scale))
        {
            return digits;
        }
    }
    const bool onePower = !IsInside(std::pow(10.0, LastDecade(scale) - 1), scale);
    return onePower ? Digits(two) : Digits(all).first(1);
}

/// Every how many decades there is room for a label.
static int DecadesPerLabel(Digits digits, const FittingScale& scale)
{
    const double decade = scale.Length / scale.Decades();
    const double needed = WidestLabel(digits, scale) / decade - FittingScale::Tolerance;
    return digits.size() == 1 ? std::max(1, static_cast<int>(std::ceil(needed))) : 1;
}

FittingTicks TicksAtDecades(const FittingScale& scale)
{
    const Digits labelled = LabelledDigits(scale);
    const int every = DecadesPerLabel(labelled, scale);
    FittingTicks ticks;
    for (int exponent = FirstDecade(scale); exponent <= LastDecade(scale); ++exponent)
    {
        for (int digit = 1; digit <= 9; ++digit)
        {
            const double value = digit * std::pow(10.0, exponent);
            if (!IsInside(value, scale))
            {
                continue;
            }
            const bool isTick = std::ranges::find(labelled, digit) != labelled.end() && exponent % every == 0;
            if (isTick)
            {
                ticks.Ticks.push_back({scale.PositionOf(value), LabelOf(digit, exponent)});
            }
            const auto& color = isTick ? fittingTickColor : fittingMinorColor;
            ticks.Grid.push_back({scale.PositionOf(value), digit == 1 ? fittingDecadeColor : color});
        }
    }
    return ticks;
}

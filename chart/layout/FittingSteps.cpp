#include "chart/layout/FittingSteps.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace
{

/// A distance between ticks: `Mantissa` times ten to the power `Exponent`.
struct Step
{
    double Mantissa;
    int Exponent;

    double Value() const { return Mantissa * std::pow(10.0, Exponent); }
    int Decimals() const { return std::max(0, -Exponent + (Mantissa == 2.5 ? 1 : 0)); }
    /// Into how many parts it is divided evenly.
    int Parts() const { return Mantissa == 2 ? 4 : 5; }
};

} // namespace

/// The first and the last multiple of a step within the range.
static std::pair<long, long> MultiplesOf(double step, const FittingScale& scale)
{
    return {std::lround(std::ceil(scale.Low / step - FittingScale::Tolerance)),
            std::lround(std::floor(scale.High / step + FittingScale::Tolerance))};
}

static double TickOf(const Step& step, long multiple)
{
    return static_cast<double>(multiple) * step.Value();
}

static bool StandsClear(const Step& step, const FittingScale& scale)
{
    const auto [first, last] = MultiplesOf(step.Value(), scale);
    const auto roomAt = [&](long i) { return scale.RoomOf(FittingLabel(TickOf(step, i), step.Decimals())); };
    for (long i = first; i < last; ++i)
    {
        const double pixels = scale.PixelsBetween(TickOf(step, i), TickOf(step, i + 1));
        if (pixels < (roomAt(i) + roomAt(i + 1)) / 2 - FittingScale::Tolerance)
        {
            return false;
        }
    }
    return true;
}

/// The smallest step whose labels stand clear; the largest that has two ticks where none does.
static Step SmallestStep(const FittingScale& scale, StepSizes sizes)
{
    const std::array mantissas = {1.0, sizes == StepSizes::Quarters ? 2.5 : 2.0, 5.0};
    const double least = (scale.High - scale.Low) * std::min(1.0, scale.TickDistance / scale.Length) / 10;
    Step smallest = {1, static_cast<int>(std::floor(std::log10(least)))};
    for (int exponent = smallest.Exponent;; ++exponent)
    {
        for (const double mantissa : mantissas)
        {
            const Step step = {mantissa, exponent};
            const auto [first, last] = MultiplesOf(step.Value(), scale);
            if (last <= first)
            {
                return smallest;
            }
            smallest = step;
            if (step.Value() >= least && StandsClear(step, scale))
            {
                return step;
            }
        }
    }
}

/// Into how many parts the steps are divided by lines: evenly with room, else in halves or not at all.
static int PartsOf(const Step& step, const FittingScale& scale)
{
    const double last = TickOf(step, MultiplesOf(step.Value(), scale).second);
    for (const int parts : {step.Parts(), 2})
    {
        // On a logarithmic axis lines are closest at its upper end.
        if (scale.PixelsBetween(last - step.Value() / parts, last) >= scale.MinorDistance)
        {
            return parts;
        }
    }
    return 1;
}

/// A power of ten on a logarithmic axis stands out.
static Color ColorOfTick(double value, const FittingScale& scale)
{
    const double exponent = scale.Kind == AxisKind::Logarithmic ? std::log10(value) : 0.5;
    const bool isDecade = std::abs(exponent - std::round(exponent)) < FittingScale::Tolerance;
    return isDecade ? fittingDecadeColor : fittingTickColor;
}

FittingTicks TicksAtSteps(const FittingScale& scale, StepSizes sizes)
{
    const Step step = SmallestStep(scale, sizes);
    const int parts = PartsOf(step, scale);
    const double part = step.Value() / parts;
    const auto [first, last] = MultiplesOf(part, scale);
    FittingTicks ticks;
    for (long i = first; i <= last; ++i)
    {
        const double value = static_cast<double>(i) * part;
        const bool isTick = i % parts == 0;
        if (isTick)
        {
            ticks.Ticks.push_back({scale.PositionOf(value), FittingLabel(value, step.Decimals())});
        }
        ticks.Grid.push_back(
            {scale.PositionOf(value), isTick ? ColorOfTick(value, scale) : fittingMinorColor});
    }
    return ticks;
}

#include "chart/layout/ZoomAxis.h"

#include "calc/Log10.h"

#include <algorithm>
#include <cmath>

/// Ends that are this near the default ones, as a share of their span, are the default ones.
static constexpr double snapShare = 0.005;
/// Least span on a linear axis, as a share of the default one, and on a logarithmic one, in decades.
static constexpr double leastShare = 0.001;
static constexpr double leastDecades = 0.1;
/// Digits that a shown end may have: steps of this share of the span.
static constexpr double shownShare = 0.001;

ZoomAxis::ZoomAxis(AxisKind axisKind, float from, float to, double lowest, double highest)
    : kind(axisKind)
    , defaultFrom(from)
    , defaultTo(to)
    , shownFrom(from)
    , shownTo(to)
{
    if (AxisMapping(kind, from, to).HasExtent())
    {
        permitted = {Scaled(lowest), Scaled(highest)};
        defaults = {Scaled(from), Scaled(to)};
        exact = defaults;
    }
}

double ZoomAxis::Scaled(double value) const
{
    return kind == AxisKind::Logarithmic ? Log10(value) : value;
}

float ZoomAxis::Value(double scaled) const
{
    return static_cast<float>(kind == AxisKind::Logarithmic ? std::pow(10.0, scaled) : scaled);
}

double ZoomAxis::LeastSpan() const
{
    const double least = kind == AxisKind::Logarithmic ? leastDecades : leastShare * defaults.Span();
    return std::min(least, permitted.Span());
}

/// Ends shift into what is permitted; what is wider than that is cut.
void ZoomAxis::Take(double from, double to)
{
    const double span = std::clamp(to - from, LeastSpan(), permitted.Span());
    const double middle = (from + to) / 2;
    exact.From = std::clamp(middle - span / 2, permitted.From, permitted.To - span);
    exact.To = exact.From + span;
    Show();
}

/// The value rounded to the power of ten at or below a step.
static double RoundedTo(double value, double step)
{
    const double digits = -std::floor(std::log10(step));
    const double factor = std::pow(10.0, std::abs(digits));
    return digits > 0 ? std::round(value * factor) / factor : std::round(value / factor) * factor;
}

float ZoomAxis::Rounded(double scaled) const
{
    const double step = shownShare * exact.Span();
    const bool logarithmic = kind == AxisKind::Logarithmic;
    const double value = logarithmic ? std::pow(10.0, scaled) : scaled;
    const auto rounded =
        static_cast<float>(RoundedTo(value, logarithmic ? value * (std::pow(10.0, step) - 1) : step));
    return std::clamp(rounded, Value(permitted.From), Value(permitted.To));
}

void ZoomAxis::Show()
{
    const double tolerance = snapShare * defaults.Span();
    const bool isDefault =
        std::abs(exact.From - defaults.From) <= tolerance && std::abs(exact.To - defaults.To) <= tolerance;
    shownFrom = isDefault ? defaultFrom : Rounded(exact.From);
    shownTo = isDefault ? defaultTo : Rounded(exact.To);
}

void ZoomAxis::Set(float from, float to)
{
    if (defaults.Span() == 0 || !AxisMapping(kind, from, to).HasExtent())
    {
        return;
    }
    Take(Scaled(from), Scaled(to));
    // An end that a step of rounding may lie beside is what was given.
    const double tolerance = shownShare * exact.Span();
    shownFrom = std::abs(exact.From - Scaled(from)) < tolerance ? from : shownFrom;
    shownTo = std::abs(exact.To - Scaled(to)) < tolerance ? to : shownTo;
}

void ZoomAxis::Zoom(double factor, double position, double place)
{
    if (defaults.Span() == 0)
    {
        return;
    }
    const double at = exact.From + exact.Span() * position / 100;
    const double span =
        std::clamp(exact.Span() / factor, std::min(LeastSpan(), exact.Span()), permitted.Span());
    const double from = at - span * place / 100;
    Take(from, from + span);
}

void ZoomAxis::ShowBetween(double fromPosition, double toPosition)
{
    if (defaults.Span() == 0)
    {
        return;
    }
    const auto [low, high] = std::minmax(fromPosition, toPosition);
    Take(exact.From + exact.Span() * low / 100, exact.From + exact.Span() * high / 100);
}

#pragma once

/// An axis of a fitting chart while its ticks are chosen.

#include "chart/layout/AxisLayout.h"
#include "chart/layout/Mapping.h"
#include "chart/layout/TextRuler.h"

#include <string>
#include <vector>

/// A labelled place of an axis.
struct FittingTick
{
    /// Position in plot units, 0 to 100.
    double At;
    std::string Text;
};

/// Labels, and the lines of and between them.
struct FittingTicks
{
    std::vector<FittingTick> Ticks;
    std::vector<GridLine> Grid;
};

/// Lines between ticks, of ticks, and of powers of ten on logarithmic axes.
inline constexpr Color fittingMinorColor = {228, 228, 228};
inline constexpr Color fittingTickColor = {178, 178, 178};
inline constexpr Color fittingDecadeColor = {120, 120, 120};

/// The range of an axis in the values that labels tell, how long it is, and how close things may stand on it.
struct FittingScale
{
    /// Rounding that a value, a logarithm or a count of steps may bear, as a share of it.
    static constexpr double Tolerance = 1e-6;

    AxisKind Kind;
    double Low;
    double High;
    /// In device-independent pixels, as all distances.
    double Length;
    /// Least distances of neighbouring ticks, and of lines between them.
    double TickDistance;
    double MinorDistance;
    /// Measures labels that must stand clear beside each other, with a gap; null where their lines do.
    const TextRuler* Ruler = nullptr;
    double LabelGap = 0;

    /// Position in plot units, within 0 to 100.
    double PositionOf(double value) const;
    double PixelsBetween(double a, double b) const;
    /// The length that a label takes of the axis.
    double RoomOf(const std::string& label) const;
    /// Powers of ten between the ends.
    double Decades() const;
};

/// A value as labels tell it, with a set minus sign.
std::string FittingLabel(double value, int decimals);

#pragma once

/// The range that a chart shows while a user zooms and pans.

#include "chart/layout/ChartView.h"
#include "chart/layout/ZoomAxis.h"

#include <optional>

/// Which axes a step concerns.
enum class ZoomAxes
{
    Both,
    X,
    Y,
};

/// The ranges in force, within what is permitted for the chart (`PermittedXRange`, `PermittedYRange`), each
/// axis as `ZoomAxis` does it. Positions are plot units, 0 to 100 from left to right and from bottom to top.
class ZoomRange
{
public:
    ZoomRange() = default;
    /// @param defaultRange covers all lines (`DefaultRange`)
    ZoomRange(const ChartKey& chart, const AxisRange& defaultRange);

    /// The range to show; frequencies in Hz.
    AxisRange Range() const;
    bool IsDefault() const { return x.IsDefault() && y.IsDefault(); }

    void Reset();
    /// Shows a range of the user's own, or the one of a former `ZoomRange`, as far as it is permitted.
    void Set(const AxisRange& range);
    /// Spans become `factor` times smaller, larger for a factor below 1; the values at the position stay
    /// there.
    /// @param placeX where the value at `atX` shall stand, if that is another position: new Y labels may move
    ///     the plot under a pointer that stays
    void Zoom(double factor, double atX, double atY, ZoomAxes axes = ZoomAxes::Both,
              std::optional<double> placeX = {});
    /// Shifts the range by some plot units, as far as is permitted; positive to higher values.
    void Pan(double byX, double byY);
    /// Shows what lies between two corners.
    void ZoomTo(double fromX, double fromY, double toX, double toY);

private:
    ZoomAxis x;
    ZoomAxis y;
};

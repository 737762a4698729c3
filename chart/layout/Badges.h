#pragma once

/// Where the badges that number the lines of a chart stand.

#include "chart/layout/SheetSurface.h"

#include <optional>
#include <span>
#include <vector>

/// A badge, all in device-independent pixels, y downwards.
struct Badge
{
    /// Position of its line in the chart, 0 to 5.
    int Line;
    Point Center;
    /// Where a thin leader to it begins, when it stands apart from its line.
    std::optional<Point> LeaderFrom;
};

/// A curve in pixels: runs of points from left to right.
using PixelCurve = std::vector<std::vector<Point>>;

/// Distance of a point from a curve, as far as it is below a limit, else the limit.
double DistanceFromCurve(const Point& point, const PixelCurve& curve, double limit);

/// Places a badge for each curve that has a point in the plot, in order, so that no two touch: beyond the
/// right end of its line; else on the line, as far right as it stands clear of all other lines; else on the
/// line where its neighbours are farthest; else near the line's end, with a leader. Above and below none
/// leaves the plot.
std::vector<Badge> PlaceBadges(std::span<const PixelCurve> curves, const Box& plot, double radius);

#include "chart/layout/Badges.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace
{

/// Distances in radii: of badges from each other, of a badge beyond its line from other lines, of one on its
/// line from them, of its center from the line's end, and between the rings around an end.
constexpr double apart = 2.3;
constexpr double clearBeyond = 1.25;
constexpr double clearOnLine = 2.2;
constexpr double beyond = 1.3;
constexpr double ring = 2.4;
/// Distance of the places that are tried along a line.
constexpr double stride = 0.5;
/// Lines that are nowhere farther apart, in radii, are alike.
constexpr double alike = 0.2;
/// How much farther neighbours must be, in radii, for a place farther left.
constexpr double worthwhile = 0.3;
/// Neighbours farther than this, in radii, are all the same.
constexpr double farAway = 12;

double DistanceOf(const Point& a, const Point& b)
{
    return std::hypot(a.X - b.X, a.Y - b.Y);
}

double DistanceOf(const Point& point, const Point& from, const Point& to)
{
    const double dx = to.X - from.X;
    const double dy = to.Y - from.Y;
    const double square = dx * dx + dy * dy;
    const double share = square > 0 ? ((point.X - from.X) * dx + (point.Y - from.Y) * dy) / square : 0;
    const double held = std::clamp(share, 0.0, 1.0);
    return DistanceOf(point, {from.X + held * dx, from.Y + held * dy});
}

} // namespace

double DistanceFromCurve(const Point& point, const PixelCurve& curve, double limit)
{
    // Runs go from left to right, so only what is near counts.
    double nearest = limit;
    for (const auto& run : curve)
    {
        const auto first = std::ranges::lower_bound(run, point.X - limit, {}, &Point::X);
        for (auto at = first == run.begin() ? first : first - 1;
             at + 1 < run.end() && at->X <= point.X + limit; ++at)
        {
            nearest = std::min(nearest, DistanceOf(point, *at, *(at + 1)));
        }
    }
    return nearest;
}

namespace
{

class BadgePlacer
{
public:
    BadgePlacer(std::span<const PixelCurve> chartCurves, const Box& plotBox, double badgeRadius)
        : curves(chartCurves)
        , plot(plotBox)
        , radius(badgeRadius)
    {
    }

    std::vector<Badge> Place()
    {
        for (std::size_t line = 0; line < curves.size(); ++line)
        {
            if (!curves[line].empty())
            {
                badges.push_back(PlaceOf(line));
            }
        }
        return std::move(badges);
    }

private:
    using Curves = std::vector<const PixelCurve*>;

    Badge PlaceOf(std::size_t line) const
    {
        const int number = static_cast<int>(line);
        const auto others = OthersThan(line);
        const Point end = curves[line].back().back();
        const Point behindEnd = Held({end.X + beyond * radius, end.Y});
        const bool inPlot = behindEnd.X <= plot.Left + plot.Width;
        if (IsFree(behindEnd) &&
            (!inPlot || ClearanceOf(behindEnd, others, clearBeyond) >= clearBeyond * radius))
        {
            return {number, behindEnd, {}};
        }
        if (const auto onLine = PlaceOnLine(line, others))
        {
            return {number, *onLine, {}};
        }
        return {number, PlaceAround(end), end};
    }

    /// Above and below within the plot.
    Point Held(const Point& point) const
    {
        const double top = plot.Top + radius;
        return {point.X, std::clamp(point.Y, top, std::max(top, plot.Top + plot.Height - radius))};
    }

    bool IsFree(const Point& center) const
    {
        return std::ranges::none_of(badges, [&](const Badge& badge)
                                    { return DistanceOf(badge.Center, center) < apart * radius; });
    }

    /// The lines that can be told apart from this one.
    Curves OthersThan(std::size_t line) const
    {
        Curves others;
        for (const auto& other : curves)
        {
            if (&other != &curves[line] && !Covers(other, curves[line]))
            {
                others.push_back(&other);
            }
        }
        return others;
    }

    /// Distance from the nearest of other lines, as far as it is below a limit in radii.
    double ClearanceOf(const Point& center, const Curves& others, double limit) const
    {
        double nearest = limit * radius;
        for (const auto* other : others)
        {
            nearest = DistanceFromCurve(center, *other, nearest);
        }
        return nearest;
    }

    /// True when one line lies on another from end to end: no place tells such lines apart, so their badges
    /// stand side by side.
    bool Covers(const PixelCurve& upper, const PixelCurve& lower) const
    {
        const double near = alike * radius;
        return std::ranges::all_of(lower,
                                   [&](const auto& run)
                                   {
                                       return std::ranges::all_of(
                                           run, [&](const Point& point)
                                           { return DistanceFromCurve(point, upper, near) < near; });
                                   });
    }

    /// The free place on the line farthest right that is clear of other lines, else the one farthest from
    /// them.
    std::optional<Point> PlaceOnLine(std::size_t line, const Curves& others) const
    {
        std::optional<Point> best;
        double farthest = 0;
        for (const Point& place : PlacesOn(line))
        {
            const Point center = Held(place);
            if (!IsFree(center))
            {
                continue;
            }
            const double clearance = ClearanceOf(place, others, farAway);
            if (clearance >= clearOnLine * radius)
            {
                return center;
            }
            if (!best || clearance > farthest + worthwhile * radius)
            {
                best = center;
                farthest = clearance;
            }
        }
        return best;
    }

    /// Places along a line from its right end leftwards.
    std::vector<Point> PlacesOn(std::size_t line) const
    {
        std::vector<Point> places;
        double toNext = 0;
        const auto& runs = curves[line];
        for (auto run = runs.rbegin(); run != runs.rend(); ++run)
        {
            for (std::size_t i = run->size() - 1; i > 0; --i)
            {
                toNext = AddPlaces((*run)[i], (*run)[i - 1], toNext, places);
            }
        }
        return places;
    }

    /// Adds places between two points, the first one at a distance. Returns how far behind the second point
    /// the next one is.
    double AddPlaces(const Point& from, const Point& to, double toNext, std::vector<Point>& places) const
    {
        const double length = DistanceOf(from, to);
        while (toNext <= length)
        {
            const double share = length > 0 ? toNext / length : 0;
            places.push_back({from.X + share * (to.X - from.X), from.Y + share * (to.Y - from.Y)});
            toNext += stride * radius;
        }
        return toNext - length;
    }

    /// The nearest free place on rings around a line's end.
    Point PlaceAround(const Point& end) const
    {
        for (int k = 1;; ++k)
        {
            const int places = 12 * k;
            for (int i = 0; i < places; ++i)
            {
                const double angle = 2 * std::numbers::pi * i / places;
                const double distance = k * ring * radius;
                const Point center = {end.X + distance * std::cos(angle), end.Y - distance * std::sin(angle)};
                if (IsInPlot(center) && IsFree(center))
                {
                    return center;
                }
            }
            if (k * ring * radius > plot.Width + plot.Height)
            {
                return Held(end);
            }
        }
    }

    /// True for a whole badge within the plot, or in the column right of it.
    bool IsInPlot(const Point& center) const
    {
        return center.X >= plot.Left + radius && center.X <= plot.Left + plot.Width + beyond * radius &&
               center.Y >= plot.Top + radius && center.Y <= plot.Top + plot.Height - radius;
    }

    std::span<const PixelCurve> curves;
    const Box& plot;
    double radius;
    std::vector<Badge> badges;
};

} // namespace

std::vector<Badge> PlaceBadges(std::span<const PixelCurve> curves, const Box& plot, double radius)
{
    return BadgePlacer(curves, plot, radius).Place();
}

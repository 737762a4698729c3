#include "chart/layout/ViewedCurve.h"

#include "calc/ValueAt.h"
#include "chart/layout/Mapping.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace
{

/// Stands for a point that cannot be drawn.
constexpr Point noPoint = {std::numeric_limits<double>::quiet_NaN(), 0};

/// Both axes of a view.
struct PlotMapping
{
    explicit PlotMapping(const ChartView& view)
        : X(XAxisKind(view.Chart), view.Range.XMin, view.Range.XMax)
        , Y(YAxisKind(view.Chart), view.Range.YMin, view.Range.YMax)
        , NeedsPositiveY(YAxisKind(view.Chart) == AxisKind::Logarithmic)
    {
    }

    Point PlaceOf(double x, double y) const
    {
        return std::isfinite(y) && (y > 0 || !NeedsPositiveY) ? Point{X.Position(x), Y.Position(y)} : noPoint;
    }

    AxisMapping X;
    AxisMapping Y;
    bool NeedsPositiveY;
};

} // namespace

static std::vector<Point> StoredPoints(const ChartRecord& line, const PlotMapping& plot)
{
    std::vector<Point> points;
    points.reserve(CurvePoints);
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        points.push_back(plot.PlaceOf(line.XData[i], line.YData[i]));
    }
    return points;
}

static std::vector<Point> NewPoints(const ViewedLine& line, const PlotMapping& plot, float from, float to,
                                    CodeView code)
{
    const double first = plot.X.Position(from);
    const double last = plot.X.Position(to);
    std::vector<Point> points;
    points.reserve(CurvePoints);
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        const double share = static_cast<double>(i) / (CurvePoints - 1);
        const double between = plot.X.Value(first + share * (last - first));
        // The ends are those of the line or the range, to the last digit.
        const double x = i == 0 ? from : i == CurvePoints - 1 ? to : between;
        const auto y = ValueAt(line.Part, line.Line, x, code);
        points.push_back(y ? plot.PlaceOf(x, *y) : noPoint);
    }
    return points;
}

/// The part of a segment that lies in the plot area, as shares of its length.
static std::optional<std::pair<double, double>> SharesInPlot(const Point& a, const Point& b)
{
    double from = 0;
    double to = 1;
    for (const auto& [start, end] : {std::pair(a.X, b.X), std::pair(a.Y, b.Y)})
    {
        if (start == end && (start < 0 || start > 100))
        {
            return std::nullopt;
        }
        if (start != end)
        {
            const double atLow = -start / (end - start);
            const double atHigh = (100 - start) / (end - start);
            from = std::max(from, std::min(atLow, atHigh));
            to = std::min(to, std::max(atLow, atHigh));
        }
    }
    return from <= to ? std::optional(std::pair(from, to)) : std::nullopt;
}

static Point PointAt(const Point& a, const Point& b, double share)
{
    return {std::clamp(a.X + share * (b.X - a.X), 0.0, 100.0),
            std::clamp(a.Y + share * (b.Y - a.Y), 0.0, 100.0)};
}

static std::vector<CurveRun> CutAtPlot(const std::vector<Point>& points)
{
    std::vector<CurveRun> runs;
    bool connected = false;
    for (std::size_t i = 1; i < points.size(); ++i)
    {
        const auto& a = points[i - 1];
        const auto& b = points[i];
        const bool exist = !std::isnan(a.X) && !std::isnan(b.X);
        const auto shares = exist ? SharesInPlot(a, b) : std::nullopt;
        if (shares && (!connected || shares->first > 0))
        {
            runs.push_back({PointAt(a, b, shares->first)});
        }
        if (shares)
        {
            runs.back().push_back(PointAt(a, b, shares->second));
        }
        connected = shares && shares->second >= 1;
    }
    return runs;
}

std::vector<CurveRun> ViewedCurve(const ViewedLine& line, const ChartView& view, CodeView code)
{
    const PlotMapping plot(view);
    if (!plot.X.HasExtent() || !plot.Y.HasExtent())
    {
        return {};
    }
    const float first = line.Line.XData.front();
    const float last = line.Line.XData.back();
    if (view.Range.XMin <= first && view.Range.XMax >= last)
    {
        return CutAtPlot(StoredPoints(line.Line, plot));
    }
    const float from = std::max(first, view.Range.XMin);
    const float to = std::min(last, view.Range.XMax);
    return from < to ? CutAtPlot(NewPoints(line, plot, from, to, code)) : std::vector<CurveRun>();
}

#include "chart/layout/ZoomRange.h"

#include "chart/layout/AxisLimits.h"

ZoomRange::ZoomRange(const ChartKey& chart, const AxisRange& defaultRange)
{
    const auto unit = double{KindOf(QuantityNamed(chart.XAxisName)).StoredPerShown};
    const auto permittedX = PermittedXRange(chart, defaultRange);
    const auto permittedY = PermittedYRange(chart, defaultRange);
    x = ZoomAxis(XAxisKind(chart), defaultRange.XMin, defaultRange.XMax, permittedX.Lowest * unit,
                 permittedX.Highest * unit);
    y = ZoomAxis(YAxisKind(chart), defaultRange.YMin, defaultRange.YMax, permittedY.Lowest,
                 permittedY.Highest);
}

AxisRange ZoomRange::Range() const
{
    return {.XMax = x.To(), .YMax = y.To(), .XMin = x.From(), .YMin = y.From()};
}

void ZoomRange::Reset()
{
    x.Reset();
    y.Reset();
}

void ZoomRange::Set(const AxisRange& range)
{
    x.Set(range.XMin, range.XMax);
    y.Set(range.YMin, range.YMax);
}

void ZoomRange::Zoom(double factor, double atX, double atY, ZoomAxes axes, std::optional<double> placeX)
{
    if (axes != ZoomAxes::Y)
    {
        x.Zoom(factor, atX, placeX.value_or(atX));
    }
    if (axes != ZoomAxes::X)
    {
        y.Zoom(factor, atY, atY);
    }
}

void ZoomRange::Pan(double byX, double byY)
{
    x.ShowBetween(byX, 100 + byX);
    y.ShowBetween(byY, 100 + byY);
}

void ZoomRange::ZoomTo(double fromX, double fromY, double toX, double toY)
{
    x.ShowBetween(fromX, toX);
    y.ShowBetween(fromY, toY);
}

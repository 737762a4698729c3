#pragma once

/// A chart of plain numbers on a sheet: axes from end to end, and boxes and curves in their values. Its
/// margins are as wide as their texts, however large it is; a title of Y longer than the box is high is left
/// out.

#include "chart/layout/FittingScale.h"
#include "chart/layout/SheetSurface.h"

#include <span>
#include <string>

/// One axis of a plot; the values are those that its labels tell.
struct PlotAxis
{
    double Low;
    double High;
    std::string Title;
    /// Linear but for `AxisKind::Logarithmic`, whose labels are frequencies from `Low` to `High` in Hz.
    AxisKind Kind = AxisKind::Linear;
};

/// A plot in a box of the sheet, which is painted white. It lasts until the sheet's next chart.
class PlotOnSheet
{
public:
    PlotOnSheet(const Box& place, PlotAxis across, PlotAxis upwards, SheetSurface& surface);

    /// Fills what lies between two values of X, from the lower end of the plot up to a value of Y; what lies
    /// outside the plot is cut off.
    void Fill(double fromX, double toX, double toY, const Color& color);
    /// Hatches what lies between two values of X.
    void Hatch(double fromX, double toX, const Color& color);
    /// An upright line at a value of X.
    void Mark(double x, const Color& color);
    /// Draws grid, frame, labels and titles over what was filled.
    void DrawAxes();
    /// A curve in the first colour of curves.
    void Curve(std::span<const Point> values);

private:
    double XPosition(double x) const { return ScaleOf(xAxis, PlotWidth()).PositionOf(x); }
    double PlotWidth() const;
    double PlotHeight() const;
    FittingScale ScaleOf(const PlotAxis& axis, double length) const;
    FittingTicks TicksOf(const PlotAxis& axis, double length) const;

    Box box;
    UserScale scale;
    PlotAxis xAxis;
    PlotAxis yAxis;
    SheetSurface& sheet;
    ChartSurface& chart;
};

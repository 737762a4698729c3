#pragma once

/// A chart of any size on a painter: axes, curves and badges, and over them what points at values.

#include "chart/drawing/LineMarks.h"
#include "chart/drawing/PainterSurface.h"
#include "chart/layout/Badges.h"
#include "chart/layout/FittingLayout.h"
#include "chart/layout/Mapping.h"
#include "chart/layout/ViewedCurve.h"

#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QRegion>
#include <QSizeF>
#include <QString>

#include <optional>
#include <vector>

/// A cursor on the chart.
struct CursorMark
{
    /// In the unit of records.
    double X;
    /// Stands above the plot: "A 20 kHz".
    QString Tag;
    /// Drawn with a dashed hairline.
    bool Dashed = false;
    /// The value of each line there, where a marker stands.
    std::vector<std::optional<double>> Values = {};
};

/// What lies over the chart.
struct ChartOverlay
{
    /// The line that is drawn thick, with a larger badge.
    std::optional<int> Thick = {};
    std::vector<CursorMark> Cursors = {};
};

/// A chart that is laid out for a room. All positions are in device-independent pixels from the room's upper
/// left corner, and painters draw in these units; a painter keeps nothing of what is drawn.
///
/// Laid out once per change of size, range or lines; drawn as often as wished.
class FittingChart
{
public:
    /// @param lines all of the view's chart, in the order of their numbers
    /// @param roomExtent in device-independent pixels
    /// @param lineMarks with the text size of all texts (`FittingTextSize` of the window)
    FittingChart(ChartView chartView, std::span<const ViewedLine> lines, CodeView code,
                 const QSizeF& roomExtent, const LineMarks& lineMarks);

    /// The plot area.
    QRectF Plot() const;
    /// The value at a position, also beside the plot, in the unit of records.
    double XAt(double pixel) const;
    double YAt(double pixel) const;
    /// The position of a value; nothing outside the range shown.
    std::optional<double> PixelOfX(double x) const;
    std::optional<double> PixelOfY(double y) const;
    /// The line that passes the position nearest, within a distance.
    std::optional<int> LineNear(const QPointF& position, double within = 8) const;

    /// The whole chart without what lies over it, on the room painted white.
    void Draw(QPainter& painter) const;
    /// What lies over the chart; all badges stand over it again.
    void DrawOverlay(const ChartOverlay& overlay, QPainter& painter) const;
    /// What cursors cover, tags and markers included; nothing for those that are out of view.
    QRegion StripsOf(const std::vector<CursorMark>& cursors) const;

private:
    QPointF PixelOf(const Point& user) const;
    double PlaceOfX(double x) const { return PixelOf({xAxis.Position(x), 0}).x(); }
    double Sized(double textSizes) const { return textSizes * marks.TextSize; }
    PainterSurface SurfaceOn(QPainter& painter) const;
    void DrawCurve(int line, double width, QPainter& painter) const;
    void DrawBadges(std::optional<int> thick, QPainter& painter) const;
    void DrawMarkers(const CursorMark& cursor, QPainter& painter) const;
    void DrawHairline(const CursorMark& cursor, QPainter& painter) const;
    void DrawTag(const QString& tag, const QRectF& box, QPainter& painter) const;
    QRectF TagBox(const CursorMark& cursor) const;
    std::vector<QRectF> TagBoxes(const std::vector<CursorMark>& cursors) const;
    std::vector<CursorMark> InView(const std::vector<CursorMark>& cursors) const;

    ChartView view;
    QSizeF extent;
    LineMarks marks;
    FittingLayout layout;
    AxisMapping xAxis;
    AxisMapping yAxis;
    /// In plot units, one for each line.
    std::vector<std::vector<CurveRun>> curves;
    /// The same in pixels.
    std::vector<PixelCurve> pixelCurves;
    std::vector<Badge> badges;
};

#include "chart/drawing/FittingChart.h"

#include "chart/drawing/FontRuler.h"
#include "chart/drawing/QtColors.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

/// How much wider a thick curve is.
static constexpr double thickCurve = 2.3;
static constexpr double largeBadge = 1.25;
static constexpr double leaderWidth = 0.75;
/// In text sizes: radius of a marker, height of a tag, blank beside its text, between tags, and their round
/// corners.
static constexpr double markerRadius = 0.28;
static constexpr double tagHeight = 1.35;
static constexpr double tagBlank = 0.35;
static constexpr double tagGap = 0.2;
static constexpr double tagCorner = 0.2;
static constexpr QColor tagColor = {40, 40, 40};

FittingChart::FittingChart(ChartView chartView, std::span<const ViewedLine> lines, CodeView code,
                           const QSizeF& roomExtent, const LineMarks& lineMarks)
    : view(std::move(chartView))
    , extent(roomExtent)
    , marks(lineMarks)
    , layout(LayOutFitting(view, extent.width(), extent.height(), FontRuler(marks.TextSize)))
    , xAxis(XAxisKind(view.Chart), view.Range.XMin, view.Range.XMax)
    , yAxis(YAxisKind(view.Chart), view.Range.YMin, view.Range.YMax)
{
    for (const auto& line : lines)
    {
        curves.push_back(ViewedCurve(line, view, code));
        auto& pixels = pixelCurves.emplace_back();
        for (const auto& run : curves.back())
        {
            auto& pixelRun = pixels.emplace_back();
            for (const auto& point : run)
            {
                const auto pixel = PixelOf(point);
                pixelRun.push_back({pixel.x(), pixel.y()});
            }
        }
    }
    badges = PlaceBadges(pixelCurves, layout.Plot, Sized(badgeRadius));
}

QRectF FittingChart::Plot() const
{
    return {layout.Plot.Left, layout.Plot.Top, layout.Plot.Width, layout.Plot.Height};
}

QPointF FittingChart::PixelOf(const Point& user) const
{
    const auto plot = Plot();
    return {plot.left() + user.X / 100 * plot.width(), plot.bottom() - user.Y / 100 * plot.height()};
}

double FittingChart::XAt(double pixel) const
{
    return xAxis.Value((pixel - layout.Plot.Left) / layout.Plot.Width * 100);
}

double FittingChart::YAt(double pixel) const
{
    return yAxis.Value((Plot().bottom() - pixel) / layout.Plot.Height * 100);
}

std::optional<double> FittingChart::PixelOfX(double x) const
{
    return xAxis.Contains(static_cast<float>(x)) ? std::optional(PlaceOfX(x)) : std::nullopt;
}

std::optional<double> FittingChart::PixelOfY(double y) const
{
    return yAxis.Contains(static_cast<float>(y)) ? std::optional(PixelOf({0, yAxis.Position(y)}).y())
                                                 : std::nullopt;
}

std::optional<int> FittingChart::LineNear(const QPointF& position, double within) const
{
    std::optional<int> nearest;
    for (std::size_t line = 0; line < pixelCurves.size(); ++line)
    {
        const double distance = DistanceFromCurve({position.x(), position.y()}, pixelCurves[line], within);
        if (distance < within)
        {
            within = distance;
            nearest = static_cast<int>(line);
        }
    }
    return nearest;
}

PainterSurface FittingChart::SurfaceOn(QPainter& painter) const
{
    return {painter, QRectF({0, 0}, extent), layout.Scale, marks.Kind, marks.Pixel()};
}

void FittingChart::DrawCurve(int line, double width, QPainter& painter) const
{
    auto surface = SurfaceOn(painter);
    const auto look = marks.LookOf(line);
    surface.SetCurveWidth(width);
    surface.SetCurveDashes(look.Dashes);
    for (const auto& run : curves[static_cast<std::size_t>(line)])
    {
        surface.Polyline(run, look.Color);
    }
}

void FittingChart::Draw(QPainter& painter) const
{
    painter.save();
    auto surface = SurfaceOn(painter);
    surface.Clear();
    DrawAxes(layout.Axes, surface);
    for (std::size_t line = 0; line < curves.size(); ++line)
    {
        DrawCurve(static_cast<int>(line), fittingCurveWidth, painter);
    }
    DrawBadges({}, painter);
    painter.restore();
}

void FittingChart::DrawBadges(std::optional<int> thick, QPainter& painter) const
{
    for (const auto& badge : badges)
    {
        const QPointF center(badge.Center.X, badge.Center.Y);
        if (badge.LeaderFrom)
        {
            painter.setRenderHint(QPainter::Antialiasing, true);
            painter.setPen(QPen(QtColor(marks.LookOf(badge.Line).Color), leaderWidth * marks.Pixel()));
            painter.drawLine(QPointF(badge.LeaderFrom->X, badge.LeaderFrom->Y), center);
        }
        marks.DrawBadge(badge.Line, center, painter, badge.Line == thick ? largeBadge : 1);
    }
}

void FittingChart::DrawHairline(const CursorMark& cursor, QPainter& painter) const
{
    const double x = PlaceOfX(cursor.X);
    const double pixel = std::max(1.0, std::round(marks.Pixel()));
    QPen pen(QtColor(frameColor), pixel);
    pen.setCapStyle(Qt::FlatCap);
    if (cursor.Dashed)
    {
        pen.setDashPattern({4, 3});
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(pen);
    painter.drawLine(QPointF(x, Plot().top()), QPointF(x, Plot().bottom()));
}

QRectF FittingChart::TagBox(const CursorMark& cursor) const
{
    const double width = FontRuler(marks.TextSize).WidthOf(cursor.Tag.toStdString()) + 2 * Sized(tagBlank);
    const double left = PlaceOfX(cursor.X) - width / 2;
    return {std::clamp(left, 0.0, std::max(0.0, extent.width() - width)), Plot().top() - Sized(tagHeight) - 2,
            width, Sized(tagHeight)};
}

std::vector<CursorMark> FittingChart::InView(const std::vector<CursorMark>& cursors) const
{
    std::vector<CursorMark> seen;
    std::ranges::copy_if(cursors, std::back_inserter(seen),
                         [this](const CursorMark& cursor) { return PixelOfX(cursor.X).has_value(); });
    return seen;
}

/// The tags of cursors in view; two that would overlap stand side by side.
std::vector<QRectF> FittingChart::TagBoxes(const std::vector<CursorMark>& cursors) const
{
    std::vector<QRectF> boxes(cursors.size());
    std::ranges::transform(cursors, boxes.begin(), [this](const auto& cursor) { return TagBox(cursor); });
    if (boxes.size() == 2)
    {
        const bool inOrder = cursors[0].X <= cursors[1].X;
        auto& left = boxes[inOrder ? 0 : 1];
        auto& right = boxes[inOrder ? 1 : 0];
        const double overlap = std::max(0.0, left.right() + Sized(tagGap) - right.left());
        left.moveLeft(std::max(0.0, left.left() - overlap / 2));
        right.moveLeft(std::max(right.left(), left.right() + Sized(tagGap)));
        right.moveRight(std::min(right.right(), extent.width()));
        left.moveRight(std::min(left.right(), right.left() - Sized(tagGap)));
    }
    return boxes;
}

void FittingChart::DrawTag(const QString& tag, const QRectF& box, QPainter& painter) const
{
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(Qt::NoPen);
    painter.setBrush(tagColor);
    painter.drawRoundedRect(box, Sized(tagCorner), Sized(tagCorner));
    painter.setFont(ChartFont(marks.Pixel()));
    painter.setPen(Qt::white);
    painter.drawText(box, Qt::AlignCenter, tag);
}

void FittingChart::DrawMarkers(const CursorMark& cursor, QPainter& painter) const
{
    const double x = PlaceOfX(cursor.X);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setBrush(Qt::white);
    for (std::size_t line = 0; line < cursor.Values.size(); ++line)
    {
        const auto& value = cursor.Values[line];
        const auto y = value ? PixelOfY(*value) : std::nullopt;
        if (y)
        {
            painter.setPen(
                QPen(QtColor(marks.LookOf(static_cast<int>(line)).Color), fittingCurveWidth * marks.Pixel()));
            painter.drawEllipse(QPointF(x, *y), Sized(markerRadius), Sized(markerRadius));
        }
    }
}

void FittingChart::DrawOverlay(const ChartOverlay& overlay, QPainter& painter) const
{
    painter.save();
    if (overlay.Thick && static_cast<std::size_t>(*overlay.Thick) < curves.size())
    {
        DrawCurve(*overlay.Thick, fittingCurveWidth * thickCurve, painter);
    }
    const auto cursors = InView(overlay.Cursors);
    const auto tags = TagBoxes(cursors);
    for (std::size_t i = 0; i < cursors.size(); ++i)
    {
        DrawHairline(cursors[i], painter);
        DrawMarkers(cursors[i], painter);
        DrawTag(cursors[i].Tag, tags[i], painter);
    }
    DrawBadges(overlay.Thick, painter);
    painter.restore();
}

QRegion FittingChart::StripsOf(const std::vector<CursorMark>& cursors) const
{
    const auto seen = InView(cursors);
    // A pixel more all around: smooth edges reach over.
    const double half = Sized(markerRadius) + fittingCurveWidth * marks.Pixel() + 1;
    QRegion strips;
    for (const auto& box : TagBoxes(seen))
    {
        strips += box.adjusted(-1, -1, 1, 1).toAlignedRect();
    }
    for (const auto& cursor : seen)
    {
        const double x = PlaceOfX(cursor.X);
        strips += QRectF(x - half, Plot().top() - half, 2 * half, Plot().height() + 2 * half).toAlignedRect();
    }
    return strips;
}

#include "chart/drawing/PainterSurface.h"

#include "chart/drawing/FittedText.h"
#include "chart/drawing/QtColors.h"

#include <algorithm>
#include <array>
#include <cmath>

/// Dashes and gaps of a curve in its widths; the first curve is a whole line. A thick curve has the dashes of
/// a usual one, so that it covers it.
static QList<qreal> DashPattern(int dashes, double width)
{
    static const std::array<QList<qreal>, 6> patterns = {{
        {},
        {7, 4},
        {2, 3},
        {12, 3, 2, 3},
        {15, 4},
        {9, 3, 2, 3, 2, 3},
    }};
    auto pattern = patterns.at(static_cast<std::size_t>(dashes));
    for (qreal& length : pattern)
    {
        length *= usualCurveWidth / width;
    }
    return pattern;
}

QFont ChartFont(double pixel)
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(chartFontSize * pixel))));
    return font;
}

PainterSurface::PainterSurface(QPainter& surfacePainter, const QRectF& targetRect, const UserScale& userScale,
                               SurfaceKind surfaceKind, double pixelExtent)
    : painter(surfacePainter)
    , target(targetRect)
    , scale(userScale)
    , kind(surfaceKind)
    , pixel(pixelExtent)
    , buttonText(::ButtonTextColor())
    , metrics(ChartFont(pixelExtent), surfacePainter.device())
    , xFactor(targetRect.width() / userScale.ScaleWidth)
    , yFactor(targetRect.height() / userScale.ScaleHeight)
{
    painter.setFont(ChartFont(pixel));
}

void PainterSurface::Clear()
{
    painter.fillRect(target, Qt::white);
}

QPointF PainterSurface::ToPainter(double x, double y) const
{
    return {target.left() + (x - scale.ScaleLeft) * xFactor, target.top() + (y - scale.ScaleTop) * yFactor};
}

void PainterSurface::Line(double x1, double y1, double x2, double y2, const Color& color)
{
    const auto from = ToPainter(x1, y1);
    const auto to = ToPainter(x2, y2);
    painter.setRenderHint(QPainter::Antialiasing, false);
    if (x1 != x2 && y1 != y2)
    {
        painter.setPen(QPen(QtColor(color), pixel));
        painter.drawLine(from, to);
        return;
    }
    // A level or upright line is a box of whole device pixels, so that it is equally wide wherever it stands.
    const auto toDevice = painter.combinedTransform();
    const auto box = toDevice.mapRect(QRectF(from, to).normalized());
    const auto width = std::max(1.0, std::round(toDevice.mapRect(QRectF(0, 0, pixel, pixel)).width()));
    const auto left = std::round(box.left() - width / 2);
    const auto top = std::round(box.top() - width / 2);
    const auto right = std::round(box.right() - width / 2) + width;
    const auto bottom = std::round(box.bottom() - width / 2) + width;
    painter.fillRect(toDevice.inverted().mapRect(QRectF(left, top, right - left, bottom - top)),
                     QtColor(color));
}

void PainterSurface::Polyline(std::span<const Point> points, const Color& color)
{
    curve.clear();
    for (const auto& point : points)
    {
        curve.push_back(ToPainter(point.X, point.Y));
    }
    painter.setRenderHint(QPainter::Antialiasing, true);
    // Round joins look the same on lines as fine as these, and take twice as long.
    QPen pen(QtColor(color), curveWidth * pixel, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin);
    if (curveDashes > 0)
    {
        pen.setCapStyle(Qt::FlatCap);
        pen.setDashPattern(DashPattern(curveDashes, curveWidth));
    }
    painter.setPen(pen);
    painter.drawPolyline(curve.data(), static_cast<int>(curve.size()));
}

void PainterSurface::Text(double x, double y, std::string_view text, const Color& color)
{
    painter.setPen(QtColor(color));
    painter.drawText(ToPainter(x, y) + QPointF(0, metrics.ascent()), QString::fromUtf8(text));
}

void PainterSurface::CondensedText(double x, double y, double across, std::string_view text,
                                   const Color& color)
{
    const auto line = QString::fromUtf8(text);
    painter.setPen(QtColor(color));
    FittedText(line, metrics.horizontalAdvance(line) * across, metrics)
        .Draw(painter, ToPainter(x, y) + QPointF(0, metrics.ascent()));
}

void PainterSurface::TextUpwards(double x, double y, std::string_view text, const Color& color)
{
    painter.save();
    painter.translate(ToPainter(x, y));
    painter.rotate(-90);
    painter.setPen(QtColor(color));
    const auto line = QString::fromUtf8(text);
    painter.drawText(QPointF(-metrics.horizontalAdvance(line) / 2, metrics.ascent()), line);
    painter.restore();
}

double PainterSurface::TextWidth(std::string_view text) const
{
    return metrics.horizontalAdvance(QString::fromUtf8(text)) / std::abs(xFactor);
}

double PainterSurface::TextHeight() const
{
    return metrics.height() / std::abs(yFactor);
}

double PainterSurface::UpwardsTextWidth() const
{
    return metrics.height() / std::abs(xFactor);
}

#include "chart/drawing/LineMarks.h"

#include "chart/drawing/PainterSurface.h"
#include "chart/drawing/QtColors.h"
#include "chart/layout/FittingLayout.h"

#include <array>

/// In badge radii: width of its rim. In text sizes: its number.
static constexpr double rimWidth = 0.2;
static constexpr double numberSize = 0.85;

CurveLook LineMarks::LookOf(int line) const
{
    const auto look = LookOfCurve(Kind, ButtonTextColor(), line);
    return {look.Color, Dashed ? line : look.Dashes};
}

double LineMarks::Pixel() const
{
    return TextSize / chartFontSize;
}

void LineMarks::DrawPiece(int line, const QPointF& from, const QPointF& to, QPainter& painter) const
{
    PainterSurface surface(painter, {0, 0, 1, 1}, {0, 0, 1, 1}, Kind, Pixel());
    const auto look = LookOf(line);
    surface.SetCurveWidth(fittingCurveWidth);
    surface.SetCurveDashes(look.Dashes);
    const std::array<Point, 2> ends = {{{from.x(), from.y()}, {to.x(), to.y()}}};
    surface.Polyline(ends, look.Color);
}

void LineMarks::DrawBadge(int line, const QPointF& center, QPainter& painter, double enlarged) const
{
    const double radius = badgeRadius * TextSize * enlarged;
    const double inner = radius * (1 - rimWidth / 2);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setBrush(Qt::white);
    painter.setPen(QPen(QtColor(LookOf(line).Color), radius * rimWidth));
    painter.drawEllipse(center, inner, inner);
    auto font = ChartFont(Pixel() * numberSize * enlarged);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(QtColor(frameColor));
    painter.drawText(QRectF(center.x() - radius, center.y() - radius, 2 * radius, 2 * radius),
                     Qt::AlignCenter, QString::number(line + 1));
}

#pragma once

/// A chart surface on a painter: a window, an image, a printer page or a vector file.

#include "chart/layout/ChartSurface.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QRectF>

#include <vector>

/// Font size of charts and panes, in device-independent pixels.
inline constexpr double chartFontSize = 11;

/// Width of the curves of charts, in device-independent pixels.
inline constexpr double usualCurveWidth = 1.3;

/// The font of charts and panes: Arial 8, which is 11 device-independent pixels high.
///
/// @param pixel extent of a device-independent pixel in painter units
QFont ChartFont(double pixel = 1);

/// Draws into a rectangle of a painter. Grid lines are crisp, on whole device pixels; curves are smooth and a
/// little thicker. The painter keeps the surface's font, pen and render hints.
class PainterSurface : public ChartSurface
{
public:
    /// @param target the rectangle that the user scale covers, in painter units
    /// @param pixel extent of a device-independent pixel in painter units: 1 on screen, more on a page whose
    ///        units are finer
    PainterSurface(QPainter& painter, const QRectF& target, const UserScale& scale,
                   SurfaceKind kind = SurfaceKind::Screen, double pixel = 1);

    /// Paints the surface white.
    void Clear();

    void Line(double x1, double y1, double x2, double y2, const Color& color) override;
    /// 0 to 5, each told apart at a glance.
    void SetCurveDashes(int dashes) override { curveDashes = dashes; }
    /// Width of the curves that follow, in device-independent pixels.
    void SetCurveWidth(double width) { curveWidth = width; }
    void Polyline(std::span<const Point> points, const Color& color) override;
    void Text(double x, double y, std::string_view text, const Color& color) override;
    void CondensedText(double x, double y, double across, std::string_view text, const Color& color) override;
    void TextUpwards(double x, double y, std::string_view text, const Color& color) override;
    double TextWidth(std::string_view text) const override;
    double TextHeight() const override;
    double UpwardsTextWidth() const override;
    SurfaceKind Kind() const override { return kind; }
    const UserScale& Scale() const override { return scale; }
    Color ButtonTextColor() const override { return buttonText; }

private:
    QPointF ToPainter(double x, double y) const;

    QPainter& painter;
    QRectF target;
    UserScale scale;
    SurfaceKind kind;
    double pixel;
    Color buttonText;
    QFontMetricsF metrics;
    /// Painter units per user unit, of either sign.
    double xFactor;
    double yFactor;
    std::vector<QPointF> curve;
    int curveDashes = 0;
    double curveWidth = usualCurveWidth;
};

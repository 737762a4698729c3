#pragma once

/// The raw painting that drawing is measured against: the same lines, curves and texts, painted at once.

#include "chart/drawing/PainterSurface.h"
#include "chart/drawing/QtColors.h"
#include "chart/layout/ChartDrawing.h"

#include <vector>

/// Notes everything that a chart draws, in painter coordinates, so that it can be painted again at once.
class NotedChart : public PainterSurface
{
public:
    using PainterSurface::PainterSurface;

    struct NotedLine
    {
        QLineF Line;
        QColor Color;
    };
    struct NotedCurve
    {
        std::vector<QPointF> Points;
        QColor Color;
    };
    struct NotedText
    {
        QPointF Baseline;
        QString Text;
    };
    std::vector<NotedLine> Lines;
    std::vector<NotedCurve> Curves;
    std::vector<NotedText> Texts;
    NotedText UpwardsText;

    void Line(double x1, double y1, double x2, double y2, const Color& color) override
    {
        Lines.push_back({QLineF(At(x1, y1), At(x2, y2)), QtColor(color)});
    }
    void Polyline(std::span<const Point> points, const Color& color) override
    {
        NotedCurve curve{{}, QtColor(color)};
        for (const auto& point : points)
        {
            curve.Points.push_back(At(point.X, point.Y));
        }
        Curves.push_back(std::move(curve));
    }
    void Text(double x, double y, std::string_view text, const Color&) override
    {
        Texts.push_back({At(x, y) + QPointF(0, 10), QString::fromUtf8(text)});
    }
    void CondensedText(double x, double y, double, std::string_view text, const Color& color) override
    {
        Text(x, y, text, color);
    }
    void TextUpwards(double x, double y, std::string_view text, const Color&) override
    {
        UpwardsText = {At(x, y), QString::fromUtf8(text)};
    }

private:
    static QPointF At(double x, double y)
    {
        return {(x - chartScale.ScaleLeft) * chartSurfaceWidth / chartScale.ScaleWidth,
                (y - chartScale.ScaleTop) * chartSurfaceHeight / chartScale.ScaleHeight};
    }
};

/// Paints what was noted, on white.
void PaintNoted(const NotedChart& chart, QPainter& painter, const QFont& font);

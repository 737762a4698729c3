#pragma once

/// A chart surface that notes what is drawn. A character is 2 units wide, a line of text 6 units high.

#include "chart/drawing/ChartDrawing.h"

#include <vector>

struct DrawnLine
{
    double X1, Y1, X2, Y2;
    QColor Color;
};

struct DrawnText
{
    double X, Y;
    QString Text;
};

struct DrawnCurve
{
    std::vector<QPointF> Points;
    QColor Color;
};

class RecordingSurface : public ChartSurface
{
public:
    explicit RecordingSurface(SurfaceKind surfaceKind = SurfaceKind::Screen)
        : kind(surfaceKind)
    {
    }

    std::vector<DrawnLine> Lines;
    std::vector<DrawnCurve> Curves;
    std::vector<DrawnText> Texts;
    std::vector<DrawnText> UpwardsTexts;

    void Line(double x1, double y1, double x2, double y2, const QColor& color) override
    {
        Lines.push_back({x1, y1, x2, y2, color});
    }
    void Polyline(std::span<const QPointF> points, const QColor& color) override
    {
        Curves.push_back({{points.begin(), points.end()}, color});
    }
    void Text(double x, double y, const QString& text, const QColor&) override
    {
        Texts.push_back({x, y, text});
    }
    void TextUpwards(double x, double y, const QString& text, const QColor&) override
    {
        UpwardsTexts.push_back({x, y, text});
    }
    double TextWidth(const QString& text) const override { return 2.0 * static_cast<double>(text.size()); }
    double TextHeight() const override { return 6; }
    double UpwardsTextWidth() const override { return 4; }
    SurfaceKind Kind() const override { return kind; }
    const UserScale& Scale() const override { return chartScale; }

private:
    SurfaceKind kind;
};

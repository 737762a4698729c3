#pragma once

/// A chart surface that notes what is drawn. A character is 2 units wide, a line of text 6 units high.

#include "chart/layout/ChartDrawing.h"

#include <algorithm>
#include <string>
#include <vector>

struct DrawnLine
{
    double X1, Y1, X2, Y2;
    ::Color Color;
};

struct DrawnText
{
    double X, Y;
    std::string Text;
    double Across = 1;
};

struct DrawnCurve
{
    std::vector<Point> Points;
    ::Color Color;
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
    Color ButtonText = {20, 30, 90};

    void Line(double x1, double y1, double x2, double y2, const Color& color) override
    {
        Lines.push_back({x1, y1, x2, y2, color});
    }
    void Polyline(std::span<const Point> points, const Color& color) override
    {
        Curves.push_back({{points.begin(), points.end()}, color});
    }
    void Text(double x, double y, std::string_view text, const Color&) override
    {
        Texts.push_back({x, y, std::string(text)});
    }
    void CondensedText(double x, double y, double across, std::string_view text, const Color&) override
    {
        Texts.push_back({x, y, std::string(text), across});
    }
    void TextUpwards(double x, double y, std::string_view text, const Color&) override
    {
        UpwardsTexts.push_back({x, y, std::string(text)});
    }
    double TextWidth(std::string_view text) const override
    {
        // The first byte of a character tells it from those that follow.
        return 2.0 * static_cast<double>(
                         std::ranges::count_if(text, [](char byte) { return (byte & 0xC0) != 0x80; }));
    }
    double TextHeight() const override { return 6; }
    double UpwardsTextWidth() const override { return 4; }
    SurfaceKind Kind() const override { return kind; }
    const UserScale& Scale() const override { return chartScale; }
    Color ButtonTextColor() const override { return ButtonText; }

private:
    SurfaceKind kind;
};

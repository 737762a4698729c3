#pragma once

/// What a chart is drawn on: a window, a printed page, a picture file.

#include "chart/layout/Colors.h"

#include <span>
#include <string_view>

/// The user scale of a surface: the coordinates of its left and top edge, and its extent in user units;
/// a negative height makes y point upwards.
struct UserScale
{
    double ScaleLeft;
    double ScaleTop;
    double ScaleWidth;
    double ScaleHeight;
};

/// A place on a surface.
struct Point
{
    double X;
    double Y;

    bool operator==(const Point&) const = default;
};

/// The kinds of surface that a chart tells apart.
enum class SurfaceKind
{
    Screen,
    ColorPrinter,
    MonochromePrinter,
};

/// A surface with a user scale. Positions and extents are in user units throughout, texts in UTF-8.
class ChartSurface
{
public:
    virtual ~ChartSurface() = default;

    /// A straight line, one device-independent pixel wide.
    virtual void Line(double x1, double y1, double x2, double y2, const Color& color) = 0;

    /// Chooses the dashes of the curves that follow; 0, at first, is a whole line. A surface that cannot draw
    /// dashes passes over it.
    virtual void SetCurveDashes(int /*dashes*/) {}

    /// A run of connected curve points.
    virtual void Polyline(std::span<const Point> points, const Color& color) = 0;

    /// One line of text whose upper left corner is at the position.
    virtual void Text(double x, double y, std::string_view text, const Color& color) = 0;

    /// The same with letters of this share of their width, below 1.
    virtual void CondensedText(double x, double y, double across, std::string_view text,
                               const Color& color) = 0;

    /// One line of text that reads upwards: its left edge is at x and its middle at y.
    virtual void TextUpwards(double x, double y, std::string_view text, const Color& color) = 0;

    /// Width and height of a line of text, in user units, both positive.
    virtual double TextWidth(std::string_view text) const = 0;
    virtual double TextHeight() const = 0;

    /// Width that a line of text takes when it reads upwards, in user units, positive.
    virtual double UpwardsTextWidth() const = 0;

    virtual SurfaceKind Kind() const = 0;

    /// The user scale in force.
    virtual const UserScale& Scale() const = 0;

    /// The colour of button texts around the surface, dark enough for a white ground.
    virtual Color ButtonTextColor() const = 0;
};

#pragma once

/// What a line of a fitting chart is known by, in the chart and in its table: colour, dashes and numbered
/// badge.

#include "chart/layout/ChartDrawing.h"

#include <QPainter>
#include <QPointF>

/// Width of curves where texts are as large as those of chart windows; it grows with them.
inline constexpr double fittingCurveWidth = 1.5;

/// How lines look on their ground.
struct LineMarks
{
    /// Size of the texts around them, in device-independent pixels.
    double TextSize = 11;
    /// Each line has its own dashes, as all have on a monochrome printer.
    bool Dashed = false;
    SurfaceKind Kind = SurfaceKind::Screen;

    /// Colour and dashes of the line at a position 0 to 5.
    CurveLook LookOf(int line) const;
    /// Extent of a device-independent pixel of a chart window.
    double Pixel() const;

    /// A straight piece of a line.
    void DrawPiece(int line, const QPointF& from, const QPointF& to, QPainter& painter) const;
    /// The line's badge: a white disc with its rim in the line's colour and its number, 1 and up.
    ///
    /// @param enlarged how much larger than usual
    void DrawBadge(int line, const QPointF& center, QPainter& painter, double enlarged = 1) const;
};

#pragma once

/// What a chart with its panes is drawn on.

#include "chart/layout/ChartSurface.h"

/// An upright rectangle: its upper left corner and its extent.
struct Box
{
    double Left;
    double Top;
    double Width;
    double Height;
};

/// A sheet that holds a chart and more. Positions and extents are in device-independent pixels from its upper
/// left corner, y downwards, texts in UTF-8 and in the font of charts.
class SheetSurface
{
public:
    virtual ~SheetSurface() = default;

    virtual void Fill(const Box& box, const Color& color) = 0;

    /// The outline of a box, one device-independent pixel wide.
    virtual void Frame(const Box& box, const Color& color) = 0;

    /// One line of text from the upper left corner of the box. What is wider is condensed, then set smaller;
    /// an ellipsis is the last resort.
    virtual void Text(const Box& box, std::string_view text, const Color& color) = 0;

    /// Width of a line of text, positive.
    virtual double TextWidth(std::string_view text) const = 0;

    /// A chart's place on the sheet, white, as a surface of its own in a user scale that covers it. It lasts
    /// until the next call and no longer than the sheet.
    virtual ChartSurface& Chart(const Box& place, const UserScale& scale) = 0;
};

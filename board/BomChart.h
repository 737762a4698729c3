#pragma once

/// The chart of one row of a board as plain shapes: capacitance over DC bias where the row works, what is
/// wanted of it, and its worst place.

#include "board/BomVerdict.h"
#include "chart/layout/ChartSurface.h"

#include <optional>
#include <string>
#include <vector>

/// In pixels.
struct BomChartSize
{
    double Width = 220;
    double Height = 84;
    /// Of the letters.
    double TextHeight = 9;
};

/// A filled span.
struct ChartBand
{
    Point UpperLeft;
    double Width;
    double Height;
    Color Fill;
};

/// Points joined by straight lines, one pixel wide.
struct ChartStroke
{
    std::vector<Point> Points;
    Color Ink;
    bool IsDashed = false;
};

struct ChartDot
{
    Point Center;
    double Radius;
    Color Fill;
};

/// Which part of a text stands at its place.
enum class TextAnchor
{
    Start,
    Middle,
    End,
};

struct ChartLabel
{
    /// On the line that the letters stand on.
    Point At;
    TextAnchor Anchor;
    std::string Text;
    Color Ink;
};

/// Shapes on white, in pixels from the upper left corner; drawn in the order of the members.
struct BomChart
{
    BomChartSize Size;
    std::vector<ChartBand> Bands;
    std::vector<ChartStroke> Strokes;
    std::vector<ChartDot> Dots;
    std::vector<ChartLabel> Labels;
};

/// The capacitance of a row's parts together, less their tolerance, from 0 to the rated voltage at both ends
/// of the ambient range; the range of the bias and what lies beyond the rating as bands, the largest
/// capacitance that is wanted dashed, the place of the least as a dot. Nothing for a part that is not in the
/// range, has no capacitance data, or whose capacitance cannot be calculated.
std::optional<BomChart> ChartOf(const JudgedItem& item, const BomChartSize& size = {});

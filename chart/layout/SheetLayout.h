#pragma once

/// A chart with its panes as one sheet: where everything stands, in device-independent pixels from the upper
/// left corner.

#include "chart/layout/ChartDrawing.h"

/// An upright rectangle.
struct Box
{
    double Left;
    double Top;
    double Width;
    double Height;
};

inline constexpr double sheetWidth = 725;
inline constexpr double sheetHeight = 248;
/// Colour of the sheet behind the panes.
inline constexpr Color sheetColor = {240, 240, 240};

/// Place of the chart surface.
inline constexpr Box sheetChart = {0, 4, chartSurfaceWidth, chartSurfaceHeight};

/// The parts of a pane.
struct PaneLayout
{
    Box Frame;
    /// The pane's name, in the upper edge of the frame.
    Box Caption;
    Box PartNum;
    Box Conditions;
};

/// Colour of the frames of panes.
inline constexpr Color paneFrameColor = {184, 184, 184};

/// Pane 0 to 5, one below the other beside the chart.
constexpr PaneLayout LayOutPane(int index)
{
    const Box frame = {377, index * 620 / 15.0 + 7.5, 333, 33};
    return {.Frame = frame,
            .Caption = {frame.Left + 6, frame.Top - 7, 40, 14},
            .PartNum = {frame.Left + 8, frame.Top + 9, 143, 17},
            .Conditions = {frame.Left + 152, frame.Top + 9, 177, 17}};
}

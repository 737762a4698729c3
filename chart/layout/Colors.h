#pragma once

/// The colours of curves, panes and grid lines.

#include <cstdint>

/// A colour that covers what lies below it; each part goes from 0 to 255.
struct Color
{
    std::uint8_t Red;
    std::uint8_t Green;
    std::uint8_t Blue;

    bool operator==(const Color&) const = default;
};

/// Grid lines of linear axes.
inline constexpr Color gridColor = {64, 64, 64};
/// Lines between the decades of logarithmic axes.
inline constexpr Color minorGridColor = {128, 128, 128};
/// Frame, decade lines and texts.
inline constexpr Color frameColor = {0, 0, 0};

/// Colour of the curve at a position 0 to 5 of its chart. The third is the colour of button texts.
Color GetLineColor(int position, const Color& buttonText);

/// Colour of the status pane 0 to 5. The sixth differs from the sixth curve.
Color GetPaneColor(int index);

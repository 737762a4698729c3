#pragma once

/// The colours of curves, panes and grid lines.

#include <QColor>

/// Grid lines of linear axes.
inline constexpr QColor gridColor = QColor(64, 64, 64);
/// Lines between the decades of logarithmic axes.
inline constexpr QColor minorGridColor = QColor(128, 128, 128);
/// Frame, decade lines and texts.
inline constexpr QColor frameColor = QColor(0, 0, 0);

/// The desktop's colour of button texts while it is dark, else black: charts are light on every desktop.
QColor ButtonTextColor();

/// Colour of the curve at a position 0 to 5 of its chart. The third is the colour of button texts.
QColor GetLineColor(int position);

/// Colour of the status pane 0 to 5. The sixth differs from the sixth curve.
QColor GetPaneColor(int index);

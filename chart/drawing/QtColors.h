#pragma once

/// Chart colours as Qt knows them, and the desktop's own.

#include "chart/layout/Colors.h"

#include <QColor>

constexpr QColor QtColor(const Color& color)
{
    return QColor(color.Red, color.Green, color.Blue);
}

/// The desktop's colour of button texts while it is dark, else black: charts are light on every desktop.
Color ButtonTextColor();

#include "chart/drawing/Colors.h"

#include <QGuiApplication>
#include <QPalette>

#include <array>

static constexpr QColor blue(0, 0, 255);
static constexpr QColor red(255, 0, 0);
static constexpr QColor black(0, 0, 0);
static constexpr QColor magenta(255, 0, 255);
static constexpr QColor green(0, 128, 0);
static constexpr QColor darkRed(128, 0, 0);
static constexpr QColor orangeBrown(192, 64, 0);

QColor ButtonTextColor()
{
    if (qGuiApp == nullptr)
    {
        return black;
    }
    const auto color = QGuiApplication::palette().color(QPalette::Active, QPalette::ButtonText);
    return color.lightness() < 128 ? color : black;
}

QColor GetLineColor(int position)
{
    if (position == 2)
    {
        return ButtonTextColor();
    }
    static constexpr std::array colors = {blue, red, black, magenta, green, orangeBrown};
    return colors.at(static_cast<std::size_t>(position));
}

QColor GetPaneColor(int index)
{
    static constexpr std::array colors = {blue, red, black, magenta, green, darkRed};
    return colors.at(static_cast<std::size_t>(index));
}

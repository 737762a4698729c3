#include "chart/drawing/QtColors.h"

#include <QGuiApplication>
#include <QPalette>

static constexpr Color black = {0, 0, 0};

static Color ColorOf(const QColor& color)
{
    return {static_cast<std::uint8_t>(color.red()), static_cast<std::uint8_t>(color.green()),
            static_cast<std::uint8_t>(color.blue())};
}

Color ButtonTextColor()
{
    if (qGuiApp == nullptr)
    {
        return black;
    }
    const auto color = QGuiApplication::palette().color(QPalette::Active, QPalette::ButtonText);
    return color.lightness() < 128 ? ColorOf(color) : black;
}

#include "chart/layout/Colors.h"

#include <array>

static constexpr Color blue = {0, 0, 255};
static constexpr Color red = {255, 0, 0};
static constexpr Color black = {0, 0, 0};
static constexpr Color magenta = {255, 0, 255};
static constexpr Color green = {0, 128, 0};
static constexpr Color darkRed = {128, 0, 0};
static constexpr Color orangeBrown = {192, 64, 0};

Color GetLineColor(int position, const Color& buttonText)
{
    const std::array colors = {blue, red, buttonText, magenta, green, orangeBrown};
    return colors.at(static_cast<std::size_t>(position));
}

Color GetPaneColor(int index)
{
    static constexpr std::array colors = {blue, red, black, magenta, green, darkRed};
    return colors.at(static_cast<std::size_t>(index));
}

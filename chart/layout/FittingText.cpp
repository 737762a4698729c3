#include "chart/layout/FittingText.h"

#include <algorithm>
#include <array>
#include <cmath>

static constexpr std::array sizes = {11.0, 12.0, 13.0, 14.0, 16.0, 18.0, 21.0,
                                     24.0, 28.0, 32.0, 38.0, 44.0, 52.0, 60.0};
/// Height of a window whose texts are of the least size, and the most that its width counts for.
static constexpr double leastHeight = 400;
static constexpr double mostHeightOfWidth = 0.6;
/// Texts grow slower than windows: a large one is there to show more.
static constexpr double growth = 0.65;
/// A size is taken this little before its window is reached.
static constexpr double lead = 1.04;

double FittingTextSize(double width, double height, double scale)
{
    const double counted = std::max(0.0, std::min(height, mostHeightOfWidth * width));
    const double most = lead * sizes.front() * std::pow(counted / leastHeight, growth);
    const auto above = std::ranges::upper_bound(sizes, most);
    const double size = above == sizes.begin() ? sizes.front() : *(above - 1);
    return std::max(sizes.front(), std::round(size * scale));
}

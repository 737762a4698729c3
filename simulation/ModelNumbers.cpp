#include "simulation/ModelNumbers.h"

#include <algorithm>
#include <charconv>

std::string NetlistNumber(double value)
{
    // The shortest text of a single would do for one value, but its rounding piles up in a polynomial.
    constexpr int digits = 10;
    char buffer[32];
    const auto written =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, digits);
    std::replace(buffer, written.ptr, 'e', 'E');
    return {buffer, written.ptr};
}

ModelNumbers ModelNumbersOf(const PartRecord& part)
{
    ModelNumbers numbers;
    std::ranges::copy(part.Data, numbers.begin());
    return numbers;
}

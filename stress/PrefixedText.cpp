#include "stress/PrefixedText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace
{
constexpr std::array<std::string_view, 7> prefixes = {"p", "n", "u", "m", "", "k", "M"};
constexpr int lowestExponent = -12;
constexpr int perPrefix = 3;

/// The power of ten of the first digit once it is rounded.
int ExponentOf(double value, int digits)
{
    std::array<char, 40> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), value,
                                       std::chars_format::scientific, digits - 1);
    const std::string_view number(text.data(), written.ptr);
    const auto place = number.find('e') + 1;
    int exponent = 0;
    std::from_chars(number.data() + place + (number[place] == '+' ? 1 : 0), written.ptr, exponent);
    return exponent;
}

std::string Fixed(double value, int decimals)
{
    std::array<char, 400> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), value,
                                       std::chars_format::fixed, std::max(decimals, 0));
    return {text.data(), written.ptr};
}

std::string WithoutZeros(std::string number)
{
    if (number.find('.') != std::string::npos)
    {
        number.erase(number.find_last_not_of('0') + 1);
        number.erase(number.ends_with('.') ? number.size() - 1 : number.size());
    }
    return number;
}
} // namespace

std::string PrefixedText(double value, std::string_view unit, int digits, bool keepsZeros)
{
    const int exponent = value == 0 ? 0 : ExponentOf(std::abs(value), digits);
    const auto index = std::clamp(static_cast<int>(std::floor((exponent - lowestExponent) / 3.0)), 0,
                                  static_cast<int>(prefixes.size()) - 1);
    const int power = lowestExponent + index * perPrefix;
    const auto number = Fixed(value * std::pow(10.0, -power), digits - 1 - (exponent - power));
    return (keepsZeros ? number : WithoutZeros(number)) + ' ' +
           std::string(prefixes[static_cast<std::size_t>(index)]) + std::string(unit);
}

#include "requests/FourDigits.h"

#include "calc/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace
{
/// A number as "1.234" and its power of ten.
struct Rounded
{
    std::string Digits;
    int Exponent = 0;

    /// The number times ten to a power.
    float Shifted(int power) const
    {
        const auto text = Digits + 'e' + std::to_string(Exponent + power);
        float value = 0;
        std::from_chars(text.data(), text.data() + text.size(), value);
        return value;
    }
};

Rounded RoundedOf(float value)
{
    constexpr int decimals = 3;
    std::array<char, 32> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::scientific, decimals)
            .ptr;
    const std::string_view written(text.data(), end);
    const auto exponentAt = written.find('e');
    auto exponent = written.substr(exponentAt + 1);
    exponent.remove_prefix(exponent.starts_with('+') ? 1 : 0);
    Rounded rounded{.Digits = std::string(written.substr(0, exponentAt)), .Exponent = 0};
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), rounded.Exponent);
    return rounded;
}
} // namespace

std::string FourDigits(float value)
{
    return NumberText(RoundedOf(value).Shifted(0));
}

std::string CapacitanceInFourDigits(float picofarads)
{
    constexpr std::array<std::string_view, 3> units = {"pF", "nF", "uF"};
    constexpr int perPrefix = 3;
    const auto rounded = RoundedOf(picofarads);
    const int prefix = std::clamp(rounded.Exponent / perPrefix, 0, static_cast<int>(units.size()) - 1);
    return NumberText(rounded.Shifted(-prefix * perPrefix)) +
           std::string(units[static_cast<std::size_t>(prefix)]);
}

#include "ownparts/ReportTexts.h"

#include "calc/EngineeringText.h"
#include "calc/NumberText.h"

#include <array>
#include <charconv>
#include <cmath>

std::string Shortened(double value)
{
    constexpr int Digits = 4;
    std::array<char, 32> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, Digits).ptr;
    double rounded = 0;
    std::from_chars(text.data(), end, rounded);
    return NumberText(static_cast<float>(rounded));
}

std::string CountText(std::size_t count, std::string_view noun)
{
    return std::to_string(count) + ' ' + std::string(noun) +
           (count == 1            ? ""
            : noun.ends_with('s') ? "es"
                                  : "s");
}

std::string Percent(double share, int decimals)
{
    return FixedNumber(share, decimals, 2) + " %";
}

std::string SignedPercent(double share, int decimals)
{
    const auto text = Percent(share, decimals);
    return (share > 0 && text != Percent(0, decimals) ? "+" : "") + text;
}

/// The text with a letter in the place of the sign for micro.
static std::string InLetters(std::string text)
{
    constexpr std::string_view Micro = "\u00B5";
    if (const auto at = text.find(Micro); at != std::string::npos)
    {
        text.replace(at, Micro.size(), "u");
    }
    return text;
}

std::string PlainText(Quantity quantity, double value)
{
    return InLetters(EngineeringText(quantity, value, ""));
}

std::string RatedText(Quantity quantity, double value)
{
    const auto form = FormOf(quantity, value, "");
    return InLetters(Shortened(value * std::pow(10, form.Shift)) + ' ' + form.Unit);
}

#include "separatedtext/DecimalNumber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <system_error>

/// A number with more characters than this is none that a program wrote.
static constexpr std::size_t MostCharacters = 64;

static bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// True where a text begins as a number does: what is read besides are "inf" and "nan".
static bool BeginsNumber(std::string_view text)
{
    text.remove_prefix(text.starts_with('-') ? 1 : 0);
    return !text.empty() && (IsDigit(text.front()) || text.front() == '.');
}

static std::optional<double> DecimalWithPoint(std::string_view text)
{
    text.remove_prefix(text.starts_with('+') && !text.starts_with("+-") ? 1 : 0);
    if (!BeginsNumber(text) || text.size() > MostCharacters)
    {
        return std::nullopt;
    }
    double value = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, value);
    if (read.ptr != end)
    {
        return std::nullopt;
    }
    if (read.ec == std::errc::result_out_of_range)
    {
        // With so few digits before it, a negative exponent alone can be to blame.
        const auto exponent = text.find_first_of("eE");
        const bool isTiny = exponent != std::string_view::npos && text.substr(exponent + 1).starts_with('-');
        return isTiny ? std::optional(0.0) : std::nullopt;
    }
    return read.ec == std::errc() ? std::optional(value) : std::nullopt;
}

std::optional<double> DecimalIn(std::string_view cell, bool takesComma)
{
    const auto comma = takesComma ? cell.find(',') : std::string_view::npos;
    if (comma == std::string_view::npos)
    {
        return DecimalWithPoint(cell);
    }
    if (cell.size() > MostCharacters || cell.find('.') != std::string_view::npos)
    {
        return std::nullopt;
    }
    std::array<char, MostCharacters> text{};
    std::ranges::copy(cell, text.begin());
    text[comma] = '.';
    return DecimalWithPoint({text.data(), cell.size()});
}

std::string WithDecimalPoint(std::string_view cell)
{
    std::string text(cell);
    if (std::ranges::count(text, ',') == 1 && text.find('.') == std::string::npos)
    {
        std::ranges::replace(text, ',', '.');
    }
    return text;
}

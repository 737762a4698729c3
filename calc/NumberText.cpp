#include "calc/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>
#include <system_error>

namespace
{
/// A finite number as its shortest decimal: 0.d1d2d3... times ten to the power `point`. Zero has no digits.
struct Decimal
{
    bool negative = false;
    std::string digits;
    int point = 0;
};
} // namespace

static bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

template <class Float> static Decimal DecimalOf(Float value)
{
    Decimal decimal;
    if (value == 0)
    {
        return decimal;
    }
    char buffer[32];
    const auto written =
        std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value), std::chars_format::scientific);
    const std::string_view text(buffer, written.ptr);
    const auto mark = text.find('e');

    decimal.negative = value < 0;
    std::ranges::copy_if(text.substr(0, mark), std::back_inserter(decimal.digits), IsDigit);
    const auto exponent = text.substr(text[mark + 1] == '+' ? mark + 2 : mark + 1);
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), decimal.point);
    ++decimal.point;
    return decimal;
}

/// Keeps the first `count` digits, rounded half away from zero; no digit stays when `count` is negative.
static void RoundTo(Decimal& decimal, int count)
{
    auto& digits = decimal.digits;
    if (count >= static_cast<int>(digits.size()))
    {
        return;
    }
    const bool up = count >= 0 && digits[static_cast<std::size_t>(count)] >= '5';
    digits.resize(static_cast<std::size_t>(std::max(count, 0)));
    while (up && !digits.empty() && digits.back() == '9')
    {
        digits.pop_back();
    }
    if (up && digits.empty())
    {
        digits.push_back('1');
        ++decimal.point;
    }
    else if (up)
    {
        ++digits.back();
    }
    digits.resize(digits.find_last_not_of('0') + 1);
    decimal.negative = decimal.negative && !digits.empty();
}

static std::string SignOf(const Decimal& decimal)
{
    return decimal.negative ? "-" : "";
}

/// Sign and at least `least` digits of the exponent: "+04", "-1".
static std::string ExponentText(int exponent, std::size_t least)
{
    auto text = std::to_string(std::abs(exponent));
    text.insert(0, least - std::min(least, text.size()), '0');
    return (exponent < 0 ? "-" : "+") + text;
}

/// All digits without an exponent; before the point at least `least` digits, and no point without a fraction.
static std::string PlainText(const Decimal& decimal, std::size_t least)
{
    const auto& digits = decimal.digits;
    const auto whole = static_cast<std::size_t>(std::max(decimal.point, 0));
    const auto zerosBehindPoint = static_cast<std::size_t>(std::max(-decimal.point, 0));

    auto text = digits.substr(0, whole);
    text.resize(std::max(digits.empty() ? 0 : whole, least), '0');
    if (digits.size() > whole)
    {
        text += '.' + std::string(zerosBehindPoint, '0') + digits.substr(whole);
    }
    return SignOf(decimal) + text;
}

/// One digit, a point, the decimals and an exponent of at least `leastExponent` digits.
static std::string ScientificText(Decimal decimal, int decimals, std::size_t leastExponent)
{
    RoundTo(decimal, 1 + decimals);
    const int exponent = decimal.digits.empty() ? 0 : decimal.point - 1;
    decimal.digits.resize(static_cast<std::size_t>(1 + decimals), '0');
    return SignOf(decimal) + decimal.digits.substr(0, 1) + '.' + decimal.digits.substr(1) + 'E' +
           ExponentText(exponent, leastExponent);
}

/// Number text of a decimal.
static std::string TextOf(const Decimal& decimal)
{
    // 1e-6 is 0.1 times ten to the power -5, and 1e15 is 0.1 times ten to the power 16.
    if (decimal.digits.empty() || (decimal.point >= -5 && decimal.point <= 15))
    {
        return PlainText(decimal, decimal.point > 0 ? 0 : 1);
    }
    const auto fraction = decimal.digits.substr(1);
    return SignOf(decimal) + decimal.digits[0] + (fraction.empty() ? "" : '.' + fraction) + 'E' +
           ExponentText(decimal.point - 1, 2);
}

/// A fixed format: at most `decimals` digits behind the point, at least `whole` before it.
static std::string FixedText(Decimal decimal, int decimals, std::size_t whole)
{
    RoundTo(decimal, decimal.point + decimals);
    return PlainText(decimal, whole);
}

static std::string NotFiniteText(double value)
{
    return std::isnan(value) ? "nan" : value < 0 ? "-inf" : "inf";
}

std::string NumberText(float value)
{
    return std::isfinite(value) ? TextOf(DecimalOf(value)) : NotFiniteText(value);
}

std::string TickText(double value, double range)
{
    if (!std::isfinite(value))
    {
        return NotFiniteText(value);
    }
    if (std::fabs(value) < std::fabs(range) * 1e-6)
    {
        return "0";
    }
    auto decimal = DecimalOf(value);
    RoundTo(decimal, 6);
    return TextOf(decimal);
}

double ToldBy(std::string_view text)
{
    double number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

static std::string FormatDecimal(const Decimal& decimal, NumberFormat format, int moreDecimals)
{
    switch (format)
    {
    case NumberFormat::ScientificTwo:
        return ScientificText(decimal, 2 + moreDecimals, 2);
    case NumberFormat::ScientificShort:
        return ScientificText(decimal, 2 + moreDecimals, 1);
    case NumberFormat::PaneValue:
        return FixedText(decimal, 3 + moreDecimals, 0);
    case NumberFormat::ReadOut:
        return FixedText(decimal, 3 + moreDecimals, 1);
    case NumberFormat::WholeTick:
        return FixedText(decimal, moreDecimals, 1);
    case NumberFormat::FractionTick:
        return FixedText(decimal, 5 + moreDecimals, 1);
    }
    return {};
}

std::string FixedNumber(double value, int decimals, int shift)
{
    if (!std::isfinite(value))
    {
        return NotFiniteText(value);
    }
    auto decimal = DecimalOf(value);
    decimal.point += shift;
    RoundTo(decimal, decimal.point + decimals);
    if (!decimal.digits.empty())
    {
        decimal.digits.resize(static_cast<std::size_t>(std::max(decimal.point + decimals, 0)), '0');
    }
    return PlainText(decimal, 1);
}

std::string FormatNumber(float value, NumberFormat format)
{
    return std::isfinite(value) ? FormatDecimal(DecimalOf(value), format, 0) : NotFiniteText(value);
}

std::string FormatTick(double value, NumberFormat format, int moreDecimals)
{
    return std::isfinite(value) ? FormatDecimal(DecimalOf(value), format, moreDecimals)
                                : NotFiniteText(value);
}

static bool IsSign(char c)
{
    return c == '+' || c == '-';
}

/// Takes the first character off when `matches` says so.
template <class Test> static bool Take(std::string_view& text, Test matches)
{
    const bool found = !text.empty() && matches(text.front());
    text.remove_prefix(found ? 1 : 0);
    return found;
}

/// Takes leading digits off and returns them.
static std::string_view TakeDigits(std::string_view& text)
{
    const auto end = std::ranges::find_if_not(text, IsDigit);
    const auto digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(digits.size());
    return digits;
}

namespace
{
/// The parts of an entry; texts without signs of their own, save for that of the exponent.
struct EntryParts
{
    bool negative = false;
    std::string_view whole;
    std::string_view fraction;
    std::string_view exponent;
};
} // namespace

static std::string_view WithoutBlanks(std::string_view text)
{
    constexpr std::string_view blanks = " \t";
    const auto first = text.find_first_not_of(blanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// The parts of a numeric entry, or nothing when it is not numeric.
static std::optional<EntryParts> SplitEntry(std::string_view text, bool commaIsDecimal)
{
    EntryParts parts;
    text = WithoutBlanks(text);
    parts.negative = text.starts_with('-');
    Take(text, IsSign);
    parts.whole = TakeDigits(text);
    if (Take(text, [&](char c) { return c == '.' || (c == ',' && commaIsDecimal); }))
    {
        parts.fraction = TakeDigits(text);
    }
    if (parts.whole.empty() && parts.fraction.empty())
    {
        return std::nullopt;
    }
    if (Take(text, [](char c) { return c == 'e' || c == 'E'; }))
    {
        parts.exponent = text.starts_with('+') ? text.substr(1) : text;
        Take(text, IsSign);
        if (TakeDigits(text).empty())
        {
            return std::nullopt;
        }
    }
    return text.empty() ? std::optional(parts) : std::nullopt;
}

/// Whether a number that does not fit a single is too large for it; else it is too small.
static bool IsTooLarge(const EntryParts& parts)
{
    // Larger than the length of any text, so that the sum below can neither overflow nor change its sign.
    constexpr long long limit = std::numeric_limits<long long>::max() / 4;
    const auto& exponent = parts.exponent;
    long long power = 0;
    const auto read = std::from_chars(exponent.data(), exponent.data() + exponent.size(), power);
    if (read.ec == std::errc::result_out_of_range)
    {
        power = exponent.starts_with('-') ? -limit : limit;
    }
    const auto leading = parts.whole.find_first_not_of('0');
    const auto magnitude = leading != std::string_view::npos
                               ? static_cast<long long>(parts.whole.size() - leading)
                               : -static_cast<long long>(parts.fraction.find_first_not_of('0'));
    return std::clamp(power, -limit, limit) + magnitude > 0;
}

std::optional<float> ReadEntry(std::string_view text, bool commaIsDecimal)
{
    const auto parts = SplitEntry(text, commaIsDecimal);
    if (!parts)
    {
        return std::nullopt;
    }
    auto plain = std::string(parts->whole) + '.' + std::string(parts->fraction);
    if (!parts->exponent.empty())
    {
        plain += 'e' + std::string(parts->exponent);
    }
    float value = 0;
    const auto read = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (read.ec == std::errc::result_out_of_range)
    {
        value = IsTooLarge(*parts) ? std::numeric_limits<float>::infinity() : 0.0F;
    }
    return parts->negative && value != 0 ? -value : value;
}

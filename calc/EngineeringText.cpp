#include "calc/EngineeringText.h"

#include "calc/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

/// Most decimals of a value, whatever its size.
static constexpr int mostDecimals = 3;
static constexpr int lowestPrefix = -12;
static constexpr int highestPrefix = 6;

/// Prefixes from 1e-12 to 1e6, a thousand apart.
static std::string_view PrefixOf(int exponent)
{
    static constexpr std::array<std::string_view, 7> prefixes = {"p", "n", "\u00B5", "m", "", "k", "M"};
    return prefixes.at(static_cast<std::size_t>((exponent - lowestPrefix) / 3));
}

/// The power of ten of the first digit of a value above 0, when it is rounded to some digits.
static int ExponentOf(double value, int digits)
{
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                   std::chars_format::scientific, digits - 1)
                         .ptr;
    const std::string_view written(text.data(), end);
    auto exponent = written.substr(written.find('e') + 1);
    exponent.remove_prefix(exponent.starts_with('+') ? 1 : 0);
    int number = 0;
    std::from_chars(exponent.data(), end, number);
    return number;
}

/// The multiple of 3 at or below.
static int ThousandsOf(int exponent)
{
    return static_cast<int>(std::floor(exponent / 3.0)) * 3;
}

static int DecimalsOf(double value, int digits, int shift)
{
    return value > 0 ? std::clamp(digits - 1 - shift - ExponentOf(value, digits), 0, mostDecimals) : 0;
}

/// The magnitudes that tell the form: the smallest above a hundredth of the largest, and that one.
static std::pair<double, double> ExtentOf(std::span<const double> values)
{
    double largest = 0;
    for (const double value : values)
    {
        largest = std::isfinite(value) ? std::max(largest, std::abs(value)) : largest;
    }
    double smallest = largest;
    for (const double value : values)
    {
        smallest = std::abs(value) > largest / 100 ? std::min(smallest, std::abs(value)) : smallest;
    }
    return {smallest, largest};
}

EngineeringForm FormOf(Quantity quantity, std::span<const double> values, std::string_view degreeSign)
{
    const auto [smallest, largest] = ExtentOf(values);
    const QuantityKind& kind = KindOf(quantity);
    EngineeringForm form;
    form.HasRatios = quantity != Quantity::CapacitanceChange;
    form.Unit = ShownUnitOf(quantity, degreeSign);
    if (!kind.PrefixedUnit.empty())
    {
        const int exponent = largest > 0 ? ExponentOf(largest, 4) + kind.PrefixedExponent : 0;
        const int prefix = std::clamp(ThousandsOf(exponent), lowestPrefix, highestPrefix);
        form.Unit = std::string(PrefixOf(prefix)) + std::string(kind.PrefixedUnit);
        form.Shift = kind.PrefixedExponent - prefix;
    }
    form.Decimals = std::max(DecimalsOf(largest, 4, form.Shift), DecimalsOf(smallest, 3, form.Shift));
    return form;
}

EngineeringForm FormOf(Quantity quantity, double value, std::string_view degreeSign)
{
    return FormOf(quantity, std::span(&value, 1), degreeSign);
}

static std::string NumberOf(const EngineeringForm& form, double value)
{
    return FixedNumber(value, form.Decimals, form.Shift);
}

bool ReadsZero(const EngineeringForm& form, double value)
{
    return NumberOf(form, value) == "0";
}

std::string WithMinusSign(const std::string& number)
{
    return number.starts_with('-') ? std::string(MinusSign) + number.substr(1) : number;
}

static std::string Signed(const std::string& number)
{
    const bool positive = number != "0" && !number.starts_with('-');
    return positive ? '+' + number : WithMinusSign(number);
}

std::string ValueText(const EngineeringForm& form, std::optional<double> value)
{
    return value ? WithMinusSign(NumberOf(form, *value)) + ' ' + form.Unit : std::string(NoValueText);
}

std::string DifferenceText(const EngineeringForm& form, std::optional<double> difference)
{
    return difference ? Signed(NumberOf(form, *difference)) + ' ' + form.Unit : std::string(NoValueText);
}

std::string DifferenceToText(const EngineeringForm& form, std::optional<double> value,
                             std::optional<double> reference)
{
    if (!value || !reference)
    {
        return std::string(NoValueText);
    }
    auto text = DifferenceText(form, *value - *reference);
    if (!form.HasRatios || ReadsZero(form, *reference))
    {
        return text;
    }
    return text + " (" + Signed(FixedNumber((*value - *reference) / *reference * 100, 1)) + " %)";
}

std::string RatioText(const EngineeringForm& form, std::optional<double> value,
                      std::optional<double> reference)
{
    const bool makesSense = form.HasRatios && value && reference && !ReadsZero(form, *reference);
    return makesSense ? RatioText(*value, *reference) : std::string(NoValueText);
}

std::string RatioText(double value, double reference)
{
    const double ratio = value / reference;
    if (!std::isfinite(ratio))
    {
        return std::string(NoValueText);
    }
    const int exponent = ratio != 0 ? ExponentOf(std::abs(ratio), 4) : 0;
    return WithMinusSign(FixedNumber(ratio, std::clamp(3 - exponent, 0, 2 * mostDecimals)));
}

std::string EngineeringText(Quantity quantity, double value, std::string_view degreeSign)
{
    return ValueText(FormOf(quantity, value, degreeSign), value);
}

static std::string AxisNumber(Quantity quantity, double kept)
{
    return TickText(ShownValue(quantity, kept), 0);
}

std::string AxisValueText(Quantity quantity, double kept, std::string_view degreeSign)
{
    return WithMinusSign(AxisNumber(quantity, kept)) + ' ' + ShownUnitOf(quantity, degreeSign);
}

std::string AxisDifferenceText(Quantity quantity, double kept, std::string_view degreeSign)
{
    return Signed(AxisNumber(quantity, kept)) + ' ' + ShownUnitOf(quantity, degreeSign);
}

#include "requests/UnitEntry.h"

#include "calc/NumberText.h"
#include "requests/Names.h"
#include "requests/RangeSigns.h"
#include "requests/RequestError.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <vector>

namespace
{
struct UnitFamily
{
    std::string_view Name;
    /// Spellings of the unit without prefix.
    std::vector<std::string_view> Spellings;
    /// Power of ten of the unit that a bare number has.
    int BareExponent;
    bool TakesPrefix;
};

struct Prefix
{
    std::string_view Text;
    int Exponent;
};
} // namespace

static constexpr std::array<Prefix, 12> prefixes = {{{"", 0},
                                                     {"p", -12},
                                                     {"n", -9},
                                                     {"u", -6},
                                                     {"U", -6},
                                                     {"\u00B5", -6},
                                                     {"\u03BC", -6},
                                                     {"m", -3},
                                                     {"k", 3},
                                                     {"K", 3},
                                                     {"M", 6},
                                                     {"G", 9}}};

/// In the order of `Quantity`.
static const UnitFamily& FamilyOf(Quantity quantity)
{
    static const std::array<UnitFamily, 14> families = {{
        {"a current", {"A", "Arms"}, 0, true},
        {"an r.m.s. voltage", {"V", "Vrms"}, 0, true},
        {"an apparent power", {"VA"}, 0, true},
        {"an effective power", {"W"}, 0, true},
        {"a frequency", {"Hz"}, 3, true},
        {"a temperature", {"C", "\u00B0C", "degC"}, 0, false},
        {"a temperature", {"C", "\u00B0C", "degC"}, 0, false},
        {"a voltage", {"V", "Vdc"}, 0, true},
        {"a capacitance", {"F"}, -12, true},
        {"a change", {"%"}, 0, false},
        {"a heat resistance", {"C/W", "\u00B0C/W", "K/W"}, 0, false},
        {"a loss resistance", {"Ohm", "\u03A9", "\u2126"}, -3, true},
        {"a time", {"s"}, 0, true},
        {"an inductance", {"H"}, 0, true},
    }};
    return families.at(static_cast<std::size_t>(quantity));
}

static bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

static bool EqualUnits(std::string_view a, std::string_view b)
{
    return std::ranges::equal(a, b, {}, LowerCase, LowerCase);
}

static std::string_view WithoutBlanks(std::string_view text)
{
    const auto first = std::min(text.find_first_not_of(' '), text.size());
    text.remove_prefix(first);
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

static std::size_t CountDigits(std::string_view text)
{
    return static_cast<std::size_t>(std::ranges::find_if_not(text, IsDigit) - text.begin());
}

/// Length of sign, digits and fraction at the beginning; 0 when there is no number.
static std::size_t MantissaLength(std::string_view text)
{
    std::size_t length = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
    std::size_t digits = CountDigits(text.substr(length));
    length += digits;
    if (length < text.size() && text[length] == '.')
    {
        const auto fraction = CountDigits(text.substr(length + 1));
        digits += fraction;
        length += 1 + fraction;
    }
    return digits > 0 ? length : 0;
}

/// Length of "E-12" at the beginning; 0 when there is no exponent.
static std::size_t ExponentLength(std::string_view text)
{
    if (text.empty() || LowerCase(text[0]) != 'e')
    {
        return 0;
    }
    const std::size_t sign = text.size() > 1 && (text[1] == '+' || text[1] == '-') ? 1 : 0;
    const auto digits = CountDigits(text.substr(1 + sign));
    return digits > 0 ? 1 + sign + digits : 0;
}

/// The number of "E-12"; one that no number could bear stays far out of every range.
static int ExponentOf(std::string_view text)
{
    if (text.empty())
    {
        return 0;
    }
    constexpr int limit = 100000;
    text.remove_prefix(text[1] == '+' ? 2 : 1);
    int exponent = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), exponent);
    return read.ec == std::errc() ? std::clamp(exponent, -limit, limit) : (text[0] == '-' ? -limit : limit);
}

/// Power of ten from a unit to that of a bare number; nothing when the unit does not fit.
static std::optional<int> ShiftOf(std::string_view unit, const UnitFamily& family)
{
    for (const Prefix& prefix : prefixes)
    {
        if (!unit.starts_with(prefix.Text) || (!family.TakesPrefix && !prefix.Text.empty()))
        {
            continue;
        }
        const auto base = unit.substr(prefix.Text.size());
        if (std::ranges::any_of(family.Spellings, [&](auto known) { return EqualUnits(base, known); }))
        {
            return prefix.Exponent - family.BareExponent;
        }
    }
    return std::nullopt;
}

std::string_view UnitTypedIn(std::string_view typed)
{
    const auto text = WithoutBlanks(typed);
    const auto mantissa = MantissaLength(text);
    const auto exponent = ExponentLength(text.substr(mantissa));
    const auto unit = WithoutBlanks(text.substr(mantissa + exponent));
    const bool isUnit =
        !unit.empty() && std::string_view(",.+-0123456789").find(unit[0]) == std::string::npos;
    return mantissa > 0 && isUnit ? unit : std::string_view();
}

std::string EntryInUnit(std::string_view typed, Quantity quantity, std::string_view key)
{
    const auto unit = UnitTypedIn(typed);
    if (unit.empty())
    {
        return std::string(typed);
    }
    const auto text = WithoutBlanks(typed);
    const auto mantissa = MantissaLength(text);
    const auto exponent = ExponentLength(text.substr(mantissa));
    const auto& family = FamilyOf(quantity);
    const auto shift = ShiftOf(unit, family);
    if (!shift)
    {
        throw RequestError(RequestErrorKind::Unit, std::string(key),
                           '"' + std::string(typed) + "\": \"" + std::string(unit) +
                               "\" is not the unit of " + std::string(family.Name));
    }
    const auto number = text.substr(0, mantissa + exponent);
    if (*shift == 0)
    {
        return std::string(number);
    }
    const int shifted = ExponentOf(text.substr(mantissa, exponent)) + *shift;
    return std::string(text.substr(0, mantissa)) + 'E' + std::to_string(shifted);
}

/// What grows with the range in which it lies is judged at its largest.
static bool IsWorstAtItsLargest(Quantity quantity)
{
    static constexpr std::array<Quantity, 5> quantities = {Quantity::Current, Quantity::RmsVoltage,
                                                           Quantity::ApparentPower, Quantity::EffectivePower,
                                                           Quantity::HeatResistance};
    return std::ranges::find(quantities, quantity) != quantities.end();
}

static void RefuseRangeOf(Quantity quantity, std::string_view typed, std::string_view key)
{
    if (IsTypedAsRange(typed))
    {
        const std::string_view what = IsWorstAtItsLargest(quantity) ? "the largest" : "one value";
        throw RequestError(RequestErrorKind::NotANumber, std::string(key),
                           '"' + std::string(typed) + "\" is a range, which is not taken here: enter " +
                               std::string(what));
    }
}

float ValueInUnit(std::string_view typed, Quantity quantity, std::string_view key)
{
    RefuseRangeOf(quantity, typed, key);
    const auto value = ReadEntry(EntryInUnit(typed, quantity, key));
    if (!value)
    {
        throw RequestError(RequestErrorKind::NotANumber, std::string(key),
                           '"' + std::string(typed) + "\" is not a number");
    }
    return *value;
}

/// A number that has been read as a single, with all its digits.
static double AllDigitsOf(std::string_view entry, float read)
{
    auto digits = WithoutBlanks(entry);
    digits.remove_prefix(digits.starts_with('+') ? 1 : 0);
    double value = read;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

float StoredValueInUnit(std::string_view typed, Quantity quantity, std::string_view key)
{
    const float shown = ValueInUnit(typed, quantity, key);
    // Read with more digits than a single has, so that a stored value that is typed is met exactly.
    return KindOf(quantity).StoredPerShown == 1
               ? shown
               : static_cast<float>(StoredNumberInUnit(typed, quantity, key));
}

double StoredNumberInUnit(std::string_view typed, Quantity quantity, std::string_view key)
{
    const float shown = ValueInUnit(typed, quantity, key);
    return AllDigitsOf(EntryInUnit(typed, quantity, key), shown) * double{KindOf(quantity).StoredPerShown};
}

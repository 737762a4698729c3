/// Values with units and ranges of them, as engineers type them on a command line: refused by name, or worth
/// what they say.

#include "calc/NumberText.h"
#include "fuzz/Require.h"
#include "partdata/RunTimeError.h"
#include "requests/RangeEntry.h"
#include "requests/RequestError.h"
#include "requests/ToleranceEntry.h"
#include "requests/UnitEntry.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace
{
/// A quantity, a spelling of its unit, and the power of ten of a bare number.
struct Unit
{
    Quantity Measures;
    const char* Spelling;
    int BareExponent;
};
} // namespace

static constexpr std::array<Unit, 10> Units = {{{Quantity::DCVoltage, "Vdc", 0},
                                                {Quantity::RmsVoltage, "Vrms", 0},
                                                {Quantity::Current, "Arms", 0},
                                                {Quantity::EffectivePower, "W", 0},
                                                {Quantity::ApparentPower, "VA", 0},
                                                {Quantity::Frequency, "Hz", 3},
                                                {Quantity::Temperature, "\u00B0C", 0},
                                                {Quantity::HeatResistance, "K/W", 0},
                                                {Quantity::Capacitance, "F", -12},
                                                {Quantity::CapacitanceChange, "%", 0}}};

/// What a number and the blanks around it consist of.
static constexpr std::string_view NumberLetters = " \t.+-0123456789eE";

/// The power of ten that the typed unit stands for, told by its first letter: no unit that takes a prefix
/// begins like one.
static int PowerOf(const Unit& unit, std::string_view typed)
{
    const auto first = typed.find_first_not_of(NumberLetters);
    if (first == std::string_view::npos)
    {
        return unit.BareExponent;
    }
    const bool takesPrefix = unit.Measures != Quantity::Temperature &&
                             unit.Measures != Quantity::HeatResistance &&
                             unit.Measures != Quantity::CapacitanceChange;
    if (!takesPrefix)
    {
        return 0;
    }
    switch (typed[first])
    {
    case 'p':
        return -12;
    case 'n':
        return -9;
    case 'u':
    case '\xC2':
    case '\xCE':
        return -6;
    case 'm':
        return -3;
    case 'k':
    case 'K':
        return 3;
    case 'M':
        return 6;
    case 'G':
        return 9;
    default:
        return 0;
    }
}

/// The value of the typed text, worked out in the widest arithmetic there is.
static long double PlainValue(const Unit& unit, std::string_view typed)
{
    const std::string number(typed.substr(0, typed.find_first_not_of(NumberLetters)));
    return std::strtold(number.c_str(), nullptr) *
           std::pow(10.0L, static_cast<long double>(PowerOf(unit, typed) - unit.BareExponent));
}

static void RequireSameValue(const Unit& unit, std::string_view typed, float value)
{
    Require(!std::isnan(value), "a value is a number");
    // Digits beyond what the wide arithmetic keeps exactly, or an exponent beyond it, prove nothing.
    const auto plain = PlainValue(unit, typed);
    if (typed.size() > 40 || !std::isfinite(plain) || std::fabs(plain) < 1e-4000L)
    {
        return;
    }
    if (std::fabs(plain) > 3.5e38L)
    {
        Require(std::isinf(value), "what is too large is out of every range");
    }
    else if (std::fabs(plain) < 1e-46L)
    {
        Require(value == 0, "what is too small is zero");
    }
    else if (std::fabs(plain) > 1.2e-38L && std::fabs(plain) < 3.4e38L)
    {
        Require(std::fabs(value - plain) <= std::fabs(plain) * 1e-7L, "a value is worth what was typed");
    }
}

static void TryQuantity(const Unit& unit, std::string_view typed)
{
    const auto quoted = '"' + std::string(typed) + '"';
    std::string entry;
    try
    {
        entry = EntryInUnit(typed, unit.Measures);
        Require(EntryInUnit(entry, unit.Measures) == entry, "an entry is in the unit of the form");
        const float value = ValueInUnit(typed, unit.Measures);
        RequireSameValue(unit, typed, value);
        Require(ReadEntry(entry) == value, "a value is that of its entry");
        if (std::isfinite(value) && unit.BareExponent == 0)
        {
            const auto text = NumberText(value);
            Require(ValueInUnit(text + ' ' + unit.Spelling, unit.Measures) == value,
                    "a value reads back with a unit");
        }
    }
    catch (const RequestError& error)
    {
        Require(IsMistaken(error.Kind()), "a wrong value is a mistaken request");
        Require(std::string_view(error.Message()).starts_with(quoted), "a refusal names what was typed");
        Require(entry.empty() || !ReadEntry(entry), "a number is not refused");
    }
}

static void RequireRange(std::string_view typed, Quantity quantity)
{
    const auto range = ConditionRangeOf(typed, quantity);
    Require(range.Low <= range.High, "the first end of a range is not above the second");
    const auto ends = RangeTypedAs(typed, quantity);
    Require(ends.has_value() == IsTypedAsRange(typed), "the sign of a range makes one");
    const float low = ends ? ValueInUnit(ends->Low, quantity) : ValueInUnit(typed, quantity);
    const float high = ends ? ValueInUnit(ends->High, quantity) : low;
    Require(range.Low == low && range.High == high, "a range has the values of its ends");
    if (std::isfinite(low) && std::isfinite(high))
    {
        Require(ConditionRangeOf(NumberText(low) + ".." + NumberText(high), quantity) == range,
                "a range reads back");
    }
}

/// A range, a single value, or what is refused; and the same as a tolerance.
static void TryRange(std::string_view typed, Quantity quantity)
{
    try
    {
        RequireRange(typed, quantity);
    }
    catch (const RequestError& error)
    {
        Require(IsMistaken(error.Kind()) || error.Kind() == RequestErrorKind::Condition,
                "a wrong range is a mistaken request, or one whose ends are the wrong way round");
        Require(!error.Message().empty(), "a refusal is told");
    }
    try
    {
        const auto tolerance = ToleranceOf(typed);
        Require(!std::isnan(tolerance.Down) && !std::isnan(tolerance.Up), "a tolerance is two numbers");
    }
    catch (const RequestError& error)
    {
        Require(IsMistaken(error.Kind()), "a wrong tolerance is a mistaken request");
    }
}

static void TryQuantityName(std::string_view typed)
{
    try
    {
        QuantityNamed(typed);
    }
    catch (const RunTimeError& error)
    {
        Require(error.Description().ends_with("no quantity " + std::string(typed)),
                "a refusal names the quantity");
    }
}

/// The first character chooses the quantity, '0' to '9', or with any other the name of one is tried.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
    {
        return 0;
    }
    const std::string_view typed(reinterpret_cast<const char*>(data) + 1, size - 1);
    const auto choice = static_cast<std::size_t>(data[0]) - '0';
    if (choice < Units.size())
    {
        TryQuantity(Units[choice], typed);
        TryRange(typed, Units[choice].Measures);
    }
    else
    {
        TryQuantityName(typed);
    }
    return 0;
}

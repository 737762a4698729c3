#include "requests/RangeEntry.h"

#include "calc/NumberText.h"
#include "requests/RequestError.h"
#include "requests/UnitEntry.h"

#include <charconv>
#include <cmath>

namespace
{
/// Two pieces of a text, without what stands between them.
struct Pieces
{
    std::string_view First;
    std::string_view Second;
};
} // namespace

static std::optional<Pieces> SplitAt(std::string_view typed, std::string_view sign)
{
    const auto place = typed.find(sign);
    if (place == std::string_view::npos)
    {
        return std::nullopt;
    }
    return Pieces{typed.substr(0, place), typed.substr(place + sign.size())};
}

static bool IsBlank(std::string_view text)
{
    return text.find_first_not_of(' ') == std::string_view::npos;
}

static bool IsRangeIn(const Pieces& pieces)
{
    return IsTypedAsRange(pieces.First) || IsTypedAsRange(pieces.Second);
}

[[noreturn]] static void RefuseRange(std::string_view typed, std::string_view key, std::string_view why)
{
    throw RequestError(RequestErrorKind::NotANumber, std::string(key),
                       '"' + std::string(typed) + "\" is not a range: " + std::string(why));
}

/// The number in the quantity's own unit, with all its digits: a tenth of 12 V is 1.2 V to the last of them.
static double FullValue(std::string_view typed, Quantity quantity, std::string_view key)
{
    double value = ValueInUnit(typed, quantity, key);
    auto entry = EntryInUnit(typed, quantity, key);
    entry.erase(0, std::min(entry.find_first_not_of(" +"), entry.size()));
    std::from_chars(entry.data(), entry.data() + entry.size(), value);
    return value;
}

static std::string DigitsOf(double value)
{
    return NumberText(static_cast<float>(value));
}

/// How far the ends lie from the middle, of "10%", "1.2V" and "1.2".
static double DistanceOf(const Pieces& pieces, Quantity quantity, std::string_view key)
{
    const auto unit = UnitTypedIn(pieces.Second);
    if (unit == "%" && quantity != Quantity::CapacitanceChange)
    {
        const double percent = FullValue(pieces.Second.substr(0, pieces.Second.find('%')), quantity, key);
        return std::abs(FullValue(pieces.First, quantity, key)) * percent / 100;
    }
    const auto ownUnit = unit.empty() ? UnitTypedIn(pieces.First) : std::string_view();
    return FullValue(std::string(pieces.Second).append(ownUnit), quantity, key);
}

static std::optional<Pieces> SplitAtSpread(std::string_view typed)
{
    for (const auto sign : SpreadSigns)
    {
        if (const auto pieces = SplitAt(typed, sign))
        {
            return pieces;
        }
    }
    return std::nullopt;
}

static TypedEnds SpreadOf(const Pieces& pieces, std::string_view typed, Quantity quantity,
                          std::string_view key)
{
    if (IsBlank(pieces.First) || IsBlank(pieces.Second) || IsRangeIn(pieces))
    {
        RefuseRange(typed, key, "a value stands on either side of the sign");
    }
    const double middle = FullValue(pieces.First, quantity, key);
    const double distance = DistanceOf(pieces, quantity, key);
    return {DigitsOf(middle - distance), DigitsOf(middle + distance)};
}

std::optional<TypedEnds> RangeTypedAs(std::string_view typed, Quantity quantity, std::string_view key)
{
    if (const auto spread = SplitAtSpread(typed))
    {
        return SpreadOf(*spread, typed, quantity, key);
    }
    const auto ends = SplitAt(typed, EndsSign);
    if (!ends)
    {
        return std::nullopt;
    }
    if (typed.find("...") != std::string_view::npos)
    {
        RefuseRange(typed, key, "two points stand between the ends");
    }
    if (IsBlank(ends->First) || IsBlank(ends->Second))
    {
        RefuseRange(typed, key, "an end is left open");
    }
    if (IsRangeIn(*ends))
    {
        RefuseRange(typed, key, "a value stands on either side of the sign");
    }
    const auto unit = UnitTypedIn(ends->First).empty() ? UnitTypedIn(ends->Second) : std::string_view();
    TypedEnds range{std::string(ends->First).append(unit), std::string(ends->Second)};
    ValueInUnit(range.Low, quantity, key);
    ValueInUnit(range.High, quantity, key);
    return range;
}

ConditionRange ConditionRangeOf(std::string_view typed, Quantity quantity, std::string_view key)
{
    const auto ends = RangeTypedAs(typed, quantity, key);
    if (!ends)
    {
        return ValueInUnit(typed, quantity, key);
    }
    const ConditionRange range(ValueInUnit(ends->Low, quantity, key), ValueInUnit(ends->High, quantity, key));
    if (range.Low > range.High)
    {
        throw RequestError(RequestErrorKind::Condition, std::string(key),
                           std::string(NameOf(quantity)) + ' ' + std::string(typed) +
                               ": the first must not be above the second")
            .Of(std::string(typed));
    }
    return range;
}

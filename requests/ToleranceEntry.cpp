#include "requests/ToleranceEntry.h"

#include "requests/RequestError.h"
#include "requests/UnitEntry.h"

#include <array>
#include <string>

/// The percentage behind one of the signs, which stands foremost.
static float PercentBehind(std::string_view sign, std::string_view typed, std::string_view key)
{
    const auto first = typed.find_first_not_of(' ');
    const bool hasSign = first != std::string_view::npos && typed.substr(first).starts_with(sign);
    if (!hasSign)
    {
        throw RequestError(RequestErrorKind::NotANumber, std::string(key),
                           '"' + std::string(typed) + "\" does not begin with " + std::string(sign));
    }
    return ValueInUnit(typed.substr(first + sign.size()), Quantity::CapacitanceChange, key);
}

CapacitanceTolerance ToleranceOf(std::string_view typed, std::string_view key)
{
    if (const auto slash = typed.find('/'); slash != std::string_view::npos)
    {
        return {.Down = PercentBehind("-", typed.substr(0, slash), key),
                .Up = PercentBehind("+", typed.substr(slash + 1), key)};
    }
    auto percent = typed;
    for (const std::string_view sign : std::array<std::string_view, 2>{"\u00B1", "+-"})
    {
        if (percent.starts_with(sign))
        {
            percent.remove_prefix(sign.size());
            break;
        }
    }
    const float either = ValueInUnit(percent, Quantity::CapacitanceChange, key);
    return {.Down = either, .Up = either};
}

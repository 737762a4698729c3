#include "ownparts/UnitCell.h"

#include "requests/RequestError.h"
#include "requests/UnitEntry.h"
#include "separatedtext/DecimalNumber.h"

#include <cmath>
#include <string>

/// No quantity that is measured on a capacitor lies beyond, in any unit.
static constexpr double Largest = 1e20;
static constexpr double Smallest = 1e-20;

static double Reachable(double value, std::string_view cell)
{
    const double magnitude = std::abs(value);
    if (magnitude > Largest || (magnitude < Smallest && value != 0))
    {
        const std::string size = magnitude > 1 ? "large" : "small";
        throw RequestError(RequestErrorKind::NotANumber, "",
                           '"' + std::string(cell) + "\" is too " + size + " to have been measured");
    }
    return value;
}

CellUnit UnitOfCells(Quantity quantity, std::string_view unit, bool takesComma)
{
    CellUnit cells{.Measures = quantity, .Factor = KindOf(quantity).StoredPerShown, .TakesComma = takesComma};
    if (!unit.empty())
    {
        cells.Factor *= DecimalIn(EntryInUnit("1 " + std::string(unit), quantity), false).value_or(1);
    }
    return cells;
}

double ValueOfCell(std::string_view cell, const CellUnit& unit)
{
    if (const auto value = DecimalIn(cell, unit.TakesComma))
    {
        return Reachable(*value * unit.Factor, cell);
    }
    const auto entry =
        EntryInUnit(unit.TakesComma ? WithDecimalPoint(cell) : std::string(cell), unit.Measures);
    const auto value = entry == cell ? std::nullopt : DecimalIn(entry, false);
    if (!value)
    {
        throw RequestError(RequestErrorKind::NotANumber, "", '"' + std::string(cell) + "\" is not a number");
    }
    return Reachable(*value * double{KindOf(unit.Measures).StoredPerShown}, cell);
}

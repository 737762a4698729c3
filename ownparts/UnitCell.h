#pragma once

/// Values in the cells of measurement files: numbers in the unit of their column, or with a unit of their
/// own.

#include "calc/Quantities.h"

#include <string_view>

/// What a bare number of a column counts in.
struct CellUnit
{
    Quantity Measures;
    /// Units of points to one of the column: 1e6 pF to a µF, 1000 Hz to a kHz.
    double Factor = 1;
    /// A comma may be the decimal sign.
    bool TakesComma = false;
};

/// The unit of a column, "uF", or the quantity's own for an empty text. Throws RequestError for another.
CellUnit UnitOfCells(Quantity quantity, std::string_view unit, bool takesComma);

/// The value of a cell in the unit that points are kept in: 3e5 Hz of "300" in a column of kHz, and of "0.3
/// MHz" in any column of a frequency. Throws RequestError for what is no number, or one out of reach, and for
/// a unit that does not fit.
double ValueOfCell(std::string_view cell, const CellUnit& unit);

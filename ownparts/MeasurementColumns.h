#pragma once

/// The columns of a measurement file: "bias [V]", "capacitance [uF]".

#include "ownparts/UnitCell.h"
#include "partfiles/TableReader.h"
#include "separatedtext/TableCells.h"

#include <array>
#include <optional>

/// What a column holds.
enum class MeasurementKind
{
    Bias,
    Temperature,
    Capacitance,
    CapacitanceChange,
    Frequency,
    Current,
    Voltage,
    Rise,
    Count,
};

inline constexpr std::size_t MeasuredColumns = static_cast<std::size_t>(MeasurementKind::Count);

/// A column of a file.
struct MeasurementColumn
{
    MeasurementKind Holds;
    /// As it stands in the file.
    std::string Heading;
    CellUnit Unit;
};

/// The columns of the line of headings, in its order, with a fault for each that is not known, stands twice
/// or has a unit that is none of its quantity, where nothing can be measured with them, and where they are
/// too many to be those of a table. Whatever is faulty is left out.
std::vector<std::optional<MeasurementColumn>> ReadColumns(const TableRow& headings, bool takesComma,
                                                          std::vector<TableError>& errors);

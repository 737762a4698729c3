#pragma once

/// The table of a chart view as texts: a row a line, with its values at the cursors.

#include "calc/ChartRecord.h"
#include "chart/layout/ChartCursors.h"
#include "chart/layout/ViewedCurve.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What a column tells.
enum class CursorColumn
{
    Number,
    Part,
    /// At B where it stands, else at A.
    Value,
    ToFirst,
    // With a second cursor only.
    ValueAtA,
    Difference,
    Ratio,
    Conditions,
};

/// A heading as it stands above its column, where room is scarce, and above copied numbers.
struct CursorHeading
{
    CursorColumn Column;
    /// "Capacitance at 85 °C", "B: 300 kHz", "B − A".
    std::string Text;
    /// "At 85 °C"
    std::string Short;
    /// "Capacitance at 85 °C [pF]"
    std::string Copied;
};

/// One cell.
struct CursorCell
{
    /// "4.372 µF", "−0.724 °C (−35.7 %)"; "–" where there is no value.
    std::string Text;
    /// As it is copied: number text in the unit of the axis, empty where there is no value.
    std::string Plain;
    /// "89960000 pF", where it differs from the text.
    std::string PlainWithUnit = {};
    /// What the column is sorted by; texts are, where it is a column of texts.
    std::optional<double> Number = {};
};

struct CursorTable
{
    std::vector<CursorHeading> Headings;
    /// One a line, in the order of the lines.
    std::vector<std::vector<CursorCell>> Rows;

    /// The cell of a row in a column, or null.
    const CursorCell* Find(std::size_t row, CursorColumn column) const;
};

/// The table of the lines of one chart at its cursors. All values and differences have one prefix and one
/// number of decimals. Throws RunTimeError 5 for a name without a unit.
CursorTable CursorTableOf(std::span<const ViewedLine> lines, const ChartCursors& cursors, CodeView view,
                          std::string_view degreeSign);

/// The conditions of a line: "12 V, 75 °C/W, 25 °C, 1.5 Arms". Throws as `ConditionLines`.
std::string ConditionsText(const ChartRecord& line, std::string_view degreeSign);

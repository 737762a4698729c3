#include "chart/layout/CursorTable.h"

#include "calc/ConditionLines.h"
#include "calc/EngineeringText.h"
#include "calc/NumberText.h"
#include "calc/ValueAt.h"

#include <algorithm>

using Reading = std::optional<double>;

namespace
{
/// The values of one line.
struct LineValues
{
    Reading AtA;
    Reading AtB;
};

/// What all cells of a table share.
struct TableSetting
{
    Quantity X;
    Quantity Y;
    std::string_view DegreeSign;
    bool HasB;
    EngineeringForm Form;
    /// Of No.1, at the cursor that moves last.
    Reading First;
};
} // namespace

static Reading Minus(const Reading& value, const Reading& reference)
{
    return value && reference ? Reading(*value - *reference) : std::nullopt;
}

static Reading Ratio(const Reading& value, const Reading& reference)
{
    return value && reference && *reference != 0 ? Reading(*value / *reference) : std::nullopt;
}

static std::string PlainText(const Reading& value)
{
    return value ? NumberText(static_cast<float>(*value)) : std::string();
}

static const Reading& Shown(const LineValues& values, bool hasB)
{
    return hasB ? values.AtB : values.AtA;
}

std::string ConditionsText(const ChartRecord& line, std::string_view degreeSign)
{
    std::string text;
    for (const ConditionLine& condition : ConditionLines(line))
    {
        text += (text.empty() ? "" : ", ") + ConditionText(condition, line, degreeSign);
    }
    return text;
}

// ---- Values ----

static std::vector<LineValues> ValuesAt(std::span<const ViewedLine> lines, const ChartCursors& cursors,
                                        CodeView view)
{
    std::vector<LineValues> values;
    for (const ViewedLine& line : lines)
    {
        const auto at = [&](const Reading& x)
        { return x ? ValueAt(line.Part, line.Line, *x, view) : Reading(); };
        values.push_back({.AtA = at(cursors.A()), .AtB = at(cursors.B())});
    }
    return values;
}

/// The form of all values and of all their differences that are shown.
static EngineeringForm FormOfAll(Quantity quantity, const std::vector<LineValues>& values, bool hasB,
                                 std::string_view degreeSign)
{
    std::vector<double> told;
    const auto tell = [&](const Reading& value)
    {
        if (value)
        {
            told.push_back(*value);
        }
    };
    for (const LineValues& line : values)
    {
        tell(line.AtA);
        tell(line.AtB);
        tell(Minus(line.AtB, line.AtA));
        tell(Minus(Shown(line, hasB), Shown(values.front(), hasB)));
    }
    return FormOf(quantity, told, degreeSign);
}

// ---- Headings ----

static std::string WithBrackets(const std::string& heading, const std::string& unit)
{
    return heading + ' ' + unit;
}

static std::vector<CursorHeading> HeadingsOf(const TableSetting& setting, const ChartCursors& cursors)
{
    const auto unit = UnitOf(setting.Y, setting.DegreeSign);
    const auto xText = [&](double x) { return AxisValueText(setting.X, x, setting.DegreeSign); };
    const auto valueAt = [&](double x) { return std::string(NameOf(setting.Y)) + " at " + xText(x); };
    std::vector<CursorHeading> headings;
    const auto add =
        [&](CursorColumn column, const std::string& text, const std::string& brief, const std::string& copied)
    { headings.push_back({.Column = column, .Text = text, .Short = brief, .Copied = copied}); };
    add(CursorColumn::Number, "No.", "No.", "No.");
    add(CursorColumn::Part, "Part number", "Part number", "Part number");
    if (!setting.HasB)
    {
        add(CursorColumn::Value, valueAt(cursors.A()), "At " + xText(cursors.A()),
            WithBrackets(valueAt(cursors.A()), unit));
        add(CursorColumn::ToFirst, "To No.1", "To No.1", WithBrackets("To No.1", unit));
    }
    else
    {
        const double b = cursors.Moving();
        const std::string minus = "B " + std::string(MinusSign) + " A";
        add(CursorColumn::Value, "B: " + xText(b), "B: " + xText(b), WithBrackets("B: " + valueAt(b), unit));
        add(CursorColumn::ToFirst, "B to No.1", "B to No.1", WithBrackets("B to No.1", unit));
        add(CursorColumn::ValueAtA, "A: " + xText(cursors.A()), "A: " + xText(cursors.A()),
            WithBrackets("A: " + valueAt(cursors.A()), unit));
        add(CursorColumn::Difference, minus, minus, WithBrackets("B - A", unit));
        add(CursorColumn::Ratio, "B / A", "B / A", "B / A");
    }
    add(CursorColumn::Conditions, "Conditions", "Conditions", "Conditions");
    return headings;
}

// ---- Cells ----

/// A value or a difference in the unit of the axis.
static CursorCell QuantityCell(const TableSetting& setting, std::string text, const Reading& value)
{
    const std::string unit = UnitOf(setting.Y, setting.DegreeSign);
    const std::string plain = PlainText(value);
    return {.Text = std::move(text),
            .Plain = plain,
            .PlainWithUnit = value ? plain + ' ' + unit.substr(1, unit.size() - 2) : std::string(),
            .Number = value};
}

static CursorCell ValueCell(const TableSetting& setting, const Reading& value)
{
    return QuantityCell(setting, ValueText(setting.Form, value), value);
}

static CursorCell RatioCell(const TableSetting& setting, const LineValues& values)
{
    const auto text = RatioText(setting.Form, values.AtB, values.AtA);
    const Reading ratio = text == NoValueText ? std::nullopt : Ratio(values.AtB, values.AtA);
    return {.Text = text, .Plain = PlainText(ratio), .Number = ratio};
}

/// The difference to No.1; its own row has none.
static CursorCell ToFirstCell(const TableSetting& setting, const Reading& value, std::size_t row)
{
    if (row == 0)
    {
        return {.Text = std::string(NoValueText), .Plain = {}};
    }
    return QuantityCell(setting, DifferenceToText(setting.Form, value, setting.First),
                        Minus(value, setting.First));
}

static CursorCell CellOf(CursorColumn column, const TableSetting& setting, const ViewedLine& line,
                         const LineValues& values, std::size_t row)
{
    switch (column)
    {
    case CursorColumn::Number:
        return {.Text = std::to_string(row + 1),
                .Plain = std::to_string(row + 1),
                .Number = static_cast<double>(row)};
    case CursorColumn::Part:
        return {.Text = line.PartNumber, .Plain = line.PartNumber};
    case CursorColumn::Value:
        return ValueCell(setting, Shown(values, setting.HasB));
    case CursorColumn::ToFirst:
        return ToFirstCell(setting, Shown(values, setting.HasB), row);
    case CursorColumn::ValueAtA:
        return ValueCell(setting, values.AtA);
    case CursorColumn::Difference:
        return QuantityCell(setting, DifferenceText(setting.Form, Minus(values.AtB, values.AtA)),
                            Minus(values.AtB, values.AtA));
    case CursorColumn::Ratio:
        return RatioCell(setting, values);
    default:
        const auto conditions = ConditionsText(line.Line, setting.DegreeSign);
        return {.Text = conditions, .Plain = conditions};
    }
}

const CursorCell* CursorTable::Find(std::size_t row, CursorColumn column) const
{
    const auto heading = std::ranges::find(Headings, column, &CursorHeading::Column);
    return heading == Headings.end() || row >= Rows.size()
               ? nullptr
               : &Rows[row][static_cast<std::size_t>(heading - Headings.begin())];
}

CursorTable CursorTableOf(std::span<const ViewedLine> lines, const ChartCursors& cursors, CodeView view,
                          std::string_view degreeSign)
{
    if (lines.empty())
    {
        return {};
    }
    const auto values = ValuesAt(lines, cursors, view);
    const ChartRecord& first = lines.front().Line;
    const bool hasB = cursors.B().has_value();
    const Quantity y = QuantityNamed(first.YAxisName);
    const TableSetting setting = {.X = QuantityNamed(first.XAxisName),
                                  .Y = y,
                                  .DegreeSign = degreeSign,
                                  .HasB = hasB,
                                  .Form = FormOfAll(y, values, hasB, degreeSign),
                                  .First = Shown(values.front(), hasB)};
    CursorTable table{.Headings = HeadingsOf(setting, cursors), .Rows = {}};
    for (std::size_t row = 0; row < lines.size(); ++row)
    {
        std::vector<CursorCell> cells;
        cells.reserve(table.Headings.size());
        for (const CursorHeading& heading : table.Headings)
        {
            cells.push_back(CellOf(heading.Column, setting, lines[row], values[row], row));
        }
        table.Rows.push_back(std::move(cells));
    }
    return table;
}

#include "ownparts/MeasurementColumns.h"

#include "requests/Names.h"
#include "requests/RequestError.h"

#include <algorithm>

namespace
{
struct ColumnKind
{
    std::string_view Name;
    Quantity Measures;
};

/// In the order of `MeasurementKind`.
constexpr std::array<ColumnKind, MeasuredColumns> Kinds = {{
    {"bias", Quantity::DCVoltage},
    {"temperature", Quantity::Temperature},
    {"capacitance", Quantity::Capacitance},
    {"capacitance change", Quantity::CapacitanceChange},
    {"frequency", Quantity::Frequency},
    {"current", Quantity::Current},
    {"voltage", Quantity::RmsVoltage},
    {"rise", Quantity::TemperatureRise},
}};

std::string_view Trimmed(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// "bias" and "V" of "bias [V]".
struct HeadingParts
{
    std::string_view Name;
    std::string_view Unit;
};

HeadingParts PartsOf(std::string_view heading)
{
    heading = Trimmed(heading);
    const auto open = heading.find('[');
    if (open == std::string_view::npos || !heading.ends_with(']'))
    {
        return {heading, {}};
    }
    return {Trimmed(heading.substr(0, open)), Trimmed(heading.substr(open + 1, heading.size() - open - 2))};
}

const ColumnKind* KindNamed(std::string_view name)
{
    const auto* const kind =
        std::ranges::find_if(Kinds, [name](const ColumnKind& known)
                             { return std::ranges::equal(known.Name, name, {}, LowerCase, LowerCase); });
    return kind == Kinds.end() ? nullptr : kind;
}

/// The column of a heading; throws RequestError for what is wrong with it.
MeasurementColumn ColumnOf(const std::string& heading, bool takesComma)
{
    const auto parts = PartsOf(heading);
    const auto* const kind = KindNamed(parts.Name);
    if (kind == nullptr)
    {
        throw RequestError(RequestErrorKind::UnknownKey, "",
                           '"' + heading + "\": no column of this name is known");
    }
    return {static_cast<MeasurementKind>(kind - Kinds.data()), heading,
            UnitOfCells(kind->Measures, parts.Unit, takesComma)};
}

using Columns = std::vector<std::optional<MeasurementColumn>>;

bool Has(const Columns& columns, MeasurementKind what)
{
    return std::ranges::any_of(columns,
                               [what](const auto& column) { return column && column->Holds == what; });
}

/// What keeps the columns from measuring anything.
std::string FaultOf(const Columns& columns)
{
    const bool hasCapacitance = Has(columns, MeasurementKind::Capacitance);
    const bool hasChange = Has(columns, MeasurementKind::CapacitanceChange);
    if (hasCapacitance && hasChange)
    {
        return "a capacitance and a capacitance change stand beside one another: leave one of them out";
    }
    return hasCapacitance || hasChange || Has(columns, MeasurementKind::Rise)
               ? ""
               : "there is neither a column of capacitance nor one of rise";
}
} // namespace

Columns ReadColumns(const TableRow& headings, bool takesComma, std::vector<TableError>& errors)
{
    constexpr std::size_t most = 100;
    if (headings.Cells.size() > most)
    {
        errors.push_back({headings.Line,
                          "",
                          {},
                          std::to_string(headings.Cells.size()) +
                              " columns: a table of measurements has at most " + std::to_string(most)});
        return {};
    }
    Columns columns;
    for (const auto& heading : headings.Cells)
    {
        auto& column = columns.emplace_back();
        try
        {
            auto found = ColumnOf(heading, takesComma);
            if (Has(columns, found.Holds))
            {
                errors.push_back({headings.Line, heading, {}, "the column stands twice"});
                continue;
            }
            column = std::move(found);
        }
        catch (const RequestError& error)
        {
            errors.push_back({headings.Line, "", {}, error.Message()});
        }
    }
    if (const auto fault = FaultOf(columns); !fault.empty())
    {
        errors.push_back({headings.Line, "", {}, fault});
    }
    return columns;
}

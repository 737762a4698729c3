#include "ownparts/MeasurementReader.h"

#include "calc/Bounds.h"
#include "calc/NumberText.h"
#include "ownparts/MeasurementColumns.h"
#include "partdata/Characteristic.h"
#include "requests/RequestError.h"
#include "separatedtext/Encoding.h"
#include "separatedtext/Separator.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr std::size_t MostErrors = 1000;
/// Where capacitance was measured if a row does not tell.
constexpr double RoomC = 25;

std::string Short(double value)
{
    return NumberText(static_cast<float>(value));
}

std::string NameOfSeparator(char separator)
{
    return separator == '\t' ? "tabs" : separator == ';' ? "semicolons" : "commas";
}

/// The values of one row.
class MeasurementRow
{
public:
    std::optional<double>& operator[](MeasurementKind what)
    {
        return values.at(static_cast<std::size_t>(what));
    }
    const std::optional<double>& operator[](MeasurementKind what) const
    {
        return values.at(static_cast<std::size_t>(what));
    }
    bool IsEmpty() const
    {
        return std::ranges::none_of(values, [](const auto& value) { return value.has_value(); });
    }
    bool Has(MeasurementKind what) const { return (*this)[what].has_value(); }
    bool HasCapacitance() const
    {
        return Has(MeasurementKind::Capacitance) || Has(MeasurementKind::CapacitanceChange);
    }

private:
    std::array<std::optional<double>, MeasuredColumns> values;
};

/// Reads the rows of one table.
class RowReader
{
public:
    RowReader(const FileHeader& fileHeader, char cellSeparator, MeasurementFile& read)
        : header(fileHeader)
        , separator(cellSeparator)
        , cells(fileHeader.Table, cellSeparator)
        , file(read)
        , characteristic(FindCharacteristic(read.Part.Names[FirstTccField]))
    {
    }

    void Read();

private:
    bool ReadHeadings();
    void ReadRow(const TableRow& row);
    bool HasForm(const TableRow& row);
    void ReadCell(const std::string& cell, const MeasurementColumn& column, MeasurementRow& values);
    void Judge(const MeasurementRow& values);
    void AddCapacitance(const MeasurementRow& values);
    void AddRise(const MeasurementRow& values);
    double PicofaradsOf(const MeasurementRow& values);
    void Allow(MeasurementKind what, double value, bool isAllowed, const std::string& message);
    void AllowBetween(MeasurementKind what, double value, double least, double most,
                      const std::string& range);
    void AllowPositive(MeasurementKind what, double value)
    {
        Allow(what, value, value > 0, "is not above 0");
    }
    /// A fault of the row at hand.
    void Fault(std::string message, std::string column = "", std::optional<std::string> value = {})
    {
        file.Errors.push_back({line, std::move(column), std::move(value), std::move(message)});
    }

    const FileHeader& header;
    char separator;
    TableCells cells;
    MeasurementFile& file;
    const Characteristic* characteristic;
    std::vector<std::optional<MeasurementColumn>> columns;
    /// The row at hand: its line and its cells.
    std::size_t line = 0;
    std::vector<std::string> texts;
};

void RowReader::Read()
{
    if (!ReadHeadings())
    {
        return;
    }
    std::size_t rows = 0;
    for (TableRow row; cells.Read(row);)
    {
        line = row.Line + header.HeadingLine - 1;
        if (++rows > MostMeasurementRows)
        {
            Fault("more than " + std::to_string(MostMeasurementRows) + " rows");
            return;
        }
        if (file.Errors.size() >= MostErrors)
        {
            Fault("too many errors: the rest of the file was not read");
            return;
        }
        ReadRow(row);
    }
}

bool RowReader::ReadHeadings()
{
    TableRow headings;
    if (!cells.Read(headings))
    {
        line = header.HeadingLine;
        Fault("the line of headings is missing");
        return false;
    }
    line = headings.Line = header.HeadingLine;
    if (!headings.Fault.empty())
    {
        Fault(headings.Fault);
        return false;
    }
    while (headings.Cells.size() > 1 && headings.Cells.back().empty())
    {
        headings.Cells.pop_back();
    }
    const auto before = file.Errors.size();
    columns = ReadColumns(headings, TakesDecimalComma(separator), file.Errors);
    return file.Errors.size() == before;
}

bool RowReader::HasForm(const TableRow& row)
{
    if (!row.Fault.empty())
    {
        Fault(row.Fault, "", row.Cells.back());
        return false;
    }
    if (row.Cells.front().starts_with('#'))
    {
        Fault("stands below the headings", "", row.Cells.front());
        return false;
    }
    const auto surplus = std::span(row.Cells).subspan(std::min(columns.size(), row.Cells.size()));
    const char other = row.Cells.size() == 1 ? SeparatorOf(row.Cells.front()) : separator;
    if (row.Cells.size() == 1 && columns.size() > 1 && other != ' ' && other != separator)
    {
        Fault("its cells stand between " + NameOfSeparator(other) + ", the headings between " +
              NameOfSeparator(separator));
        return false;
    }
    if (std::ranges::any_of(surplus, [](const auto& cell) { return !cell.empty(); }))
    {
        Fault(std::to_string(row.Cells.size()) + " cells instead of " + std::to_string(columns.size()));
        return false;
    }
    return true;
}

void RowReader::ReadRow(const TableRow& row)
{
    if (!HasForm(row))
    {
        return;
    }
    const auto before = file.Errors.size();
    texts = row.Cells;
    texts.resize(columns.size());
    MeasurementRow values;
    for (std::size_t i = 0; i < columns.size(); ++i)
    {
        ReadCell(texts[i], *columns[i], values);
    }
    if (file.Errors.size() == before && !values.IsEmpty())
    {
        Judge(values);
    }
}

void RowReader::ReadCell(const std::string& cell, const MeasurementColumn& column, MeasurementRow& values)
{
    const auto first = std::min(cell.find_first_not_of(' '), cell.size());
    const auto text = std::string_view(cell).substr(first, cell.find_last_not_of(' ') + 1 - first);
    if (text.empty())
    {
        return;
    }
    try
    {
        values[column.Holds] = ValueOfCell(text, column.Unit);
    }
    catch (const RequestError& error)
    {
        Fault(error.Message(), column.Heading);
    }
}

void RowReader::Allow(MeasurementKind what, double value, bool isAllowed, const std::string& message)
{
    const auto at =
        std::ranges::find_if(columns, [what](const auto& column) { return column->Holds == what; });
    if (!isAllowed && at == columns.end())
    {
        Fault(message, "", Short(value));
    }
    else if (!isAllowed)
    {
        Fault(message, (*at)->Heading, texts[static_cast<std::size_t>(at - columns.begin())]);
    }
}

void RowReader::AllowBetween(MeasurementKind what, double value, double least, double most,
                             const std::string& range)
{
    Allow(what, value, value >= least && value <= most,
          "is outside " + Short(least) + " to " + Short(most) + range);
}

void RowReader::Judge(const MeasurementRow& values)
{
    if (values.HasCapacitance() == values.Has(MeasurementKind::Rise))
    {
        Fault(values.Has(MeasurementKind::Rise) ? "measures both a capacitance and a rise"
                                                : "measures neither a capacitance nor a rise");
        return;
    }
    const double bias = values[MeasurementKind::Bias].value_or(0);
    const double rated = file.Part.RatedVolts;
    Allow(MeasurementKind::Bias, bias, bias >= 0, "is below 0");
    Allow(MeasurementKind::Bias, bias, rated == 0 || bias <= rated,
          "above the rated voltage " + Short(rated));
    values.HasCapacitance() ? AddCapacitance(values) : AddRise(values);
}

double RowReader::PicofaradsOf(const MeasurementRow& values)
{
    if (const auto& picofarads = values[MeasurementKind::Capacitance])
    {
        AllowPositive(MeasurementKind::Capacitance, *picofarads);
        return *picofarads;
    }
    const double change = values[MeasurementKind::CapacitanceChange].value_or(0);
    Allow(MeasurementKind::CapacitanceChange, change, change > -100, "leaves no capacitance");
    return file.Part.NominalPicofarads * (1 + change / 100);
}

void RowReader::AddCapacitance(const MeasurementRow& values)
{
    for (const auto what : {MeasurementKind::Frequency, MeasurementKind::Current, MeasurementKind::Voltage})
    {
        Allow(what, 0, !values.Has(what), "has no place beside a capacitance");
    }
    const double celsius = values[MeasurementKind::Temperature].value_or(RoomC);
    if (characteristic != nullptr)
    {
        const auto& range = characteristic->RangeIn(CodeView::Eia);
        AllowBetween(MeasurementKind::Temperature, celsius, range.MinC, range.MaxC,
                     " C of " + std::string(characteristic->Names[0]));
    }
    file.Part.Measured.Capacitances.push_back(
        {line, values[MeasurementKind::Bias].value_or(0), celsius, PicofaradsOf(values)});
}

void RowReader::AddRise(const MeasurementRow& values)
{
    if (!values.Has(MeasurementKind::Frequency))
    {
        Fault("a rise needs a frequency");
        return;
    }
    if (values.Has(MeasurementKind::Current) == values.Has(MeasurementKind::Voltage))
    {
        Fault(values.Has(MeasurementKind::Current) ? "a rise has either a current or a voltage"
                                                   : "a rise needs a current or a voltage");
        return;
    }
    const bool byCurrent = values.Has(MeasurementKind::Current);
    const auto load = byCurrent ? MeasurementKind::Current : MeasurementKind::Voltage;
    const MeasuredRise rise = {line,
                               values[MeasurementKind::Bias].value_or(0),
                               values[MeasurementKind::Temperature].value_or(RoomC),
                               *values[MeasurementKind::Frequency],
                               *values[load],
                               *values[MeasurementKind::Rise]};
    AllowBetween(MeasurementKind::Frequency, rise.Hz, LowestFrequencyHz, HighestFrequencyHz, " Hz");
    AllowBetween(MeasurementKind::Temperature, rise.Celsius, double{LowestHeatingAmbientC}, file.Part.UpperC,
                 " C of heating");
    AllowPositive(load, rise.Load);
    AllowPositive(MeasurementKind::Rise, rise.Rise);
    Allow(MeasurementKind::Rise, rise.Rise, rise.Rise <= MostRise, "above " + Short(MostRise) + " C");
    (byCurrent ? file.Part.Measured.RisesByCurrent : file.Part.Measured.RisesByVoltage).push_back(rise);
}

/// The separator that the first line of a table decides on for all of it.
char SeparatorOfTable(std::string_view table)
{
    const char separator = SeparatorOf(table.substr(0, table.find_first_of("\r\n")));
    return separator == ' ' ? ',' : separator;
}

/// A rise tells nothing without the heat resistance of its rig.
void NeedHeatResistance(const FileHeader& header, MeasurementFile& file)
{
    const auto& measured = file.Part.Measured;
    const bool isTold = std::ranges::any_of(header.Lines, [](const HeaderLine& told)
                                            { return FieldNamed(told.Name) == HeaderField::HeatResistance; });
    const bool hasRise = !measured.RisesByCurrent.empty() || !measured.RisesByVoltage.empty();
    if (hasRise && !isTold)
    {
        const std::string name(NameOf(HeaderField::HeatResistance));
        file.Errors.push_back({header.HeadingLine,
                               name,
                               {},
                               "a line \"# " + name + ": ...\" is missing: a rise needs that of its rig"});
    }
}
} // namespace

MeasurementFile ReadMeasurements(std::string bytes, const JisSizeLookup& jisSizeOf)
{
    const auto text = Utf8Of(std::move(bytes));
    const auto header = HeaderOf(text);
    const char separator = SeparatorOfTable(header.Table);
    MeasurementFile file;
    file.Part = PartOfHeader(header, TakesDecimalComma(separator), jisSizeOf, file.Errors);
    RowReader(header, separator, file).Read();
    NeedHeatResistance(header, file);
    std::ranges::stable_sort(file.Errors, {}, &TableError::Line);
    return file;
}

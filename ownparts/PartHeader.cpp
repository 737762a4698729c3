#include "ownparts/PartHeader.h"

#include "calc/Bounds.h"
#include "ownparts/UnitCell.h"
#include "partdata/Characteristic.h"
#include "partdata/Windows1252.h"
#include "partfiles/NameCell.h"
#include "partfiles/SizeNames.h"
#include "requests/RequestError.h"

#include <algorithm>

namespace
{
/// Highest operating temperatures where a file tells none.
constexpr double UpperOfX7r = 125;
constexpr double UpperOfOthers = 85;
constexpr double HottestC = 200;

/// Reads the fields one by one and gathers what is wrong.
class PartReader
{
public:
    PartReader(const FileHeader& read, bool comma, const JisSizeLookup& jisSizes,
               std::vector<TableError>& faults)
        : header(read)
        , takesComma(comma)
        , jisSizeOf(jisSizes)
        , errors(faults)
    {
    }

    MeasuredPart Read();

private:
    void FindFields();
    void ReadNames();
    void ReadSizes();
    void ReadCharacteristic();
    void ReadUpperTemperature();
    /// The name in the code page; empty, with a fault, where it cannot stand in an index.
    std::string Name(HeaderField field);
    std::string NameOr(HeaderField field, const std::string& other);
    /// The value above 0; 0 for a field that is left out, and, with a fault, for anything else.
    double Positive(HeaderField field, Quantity quantity);
    void Need(HeaderField field);
    const HeaderLine* Find(HeaderField field) const { return fields.at(static_cast<std::size_t>(field)); }
    void Fault(const HeaderLine& line, std::string message)
    {
        errors.push_back({line.Line, line.Name, line.Value, std::move(message)});
    }

    const FileHeader& header;
    bool takesComma;
    const JisSizeLookup& jisSizeOf;
    std::vector<TableError>& errors;
    std::array<const HeaderLine*, static_cast<std::size_t>(HeaderField::Count)> fields{};
    MeasuredPart part;
};

MeasuredPart PartReader::Read()
{
    FindFields();
    for (const auto field : {HeaderField::Part, HeaderField::Size, HeaderField::Characteristic,
                             HeaderField::Capacitance, HeaderField::RatedVoltage})
    {
        Need(field);
    }
    ReadNames();
    ReadSizes();
    ReadCharacteristic();
    part.NominalPicofarads = Positive(HeaderField::Capacitance, Quantity::Capacitance);
    part.RatedVolts = Positive(HeaderField::RatedVoltage, Quantity::DCVoltage);
    part.HeatResistance = Positive(HeaderField::HeatResistance, Quantity::HeatResistance);
    ReadUpperTemperature();
    return std::move(part);
}

void PartReader::FindFields()
{
    for (const auto& line : header.Lines)
    {
        const auto field = FieldNamed(line.Name);
        if (!field)
        {
            errors.push_back({line.Line, "", line.Name, "no value of this name is known"});
            continue;
        }
        auto& known = fields.at(static_cast<std::size_t>(*field));
        if (known != nullptr)
        {
            Fault(line, "stands in line " + std::to_string(known->Line) + " already");
            continue;
        }
        known = &line;
    }
}

void PartReader::Need(HeaderField field)
{
    if (Find(field) == nullptr)
    {
        const std::string name(NameOf(field));
        errors.push_back(
            {header.HeadingLine, name, {}, "a line \"# " + name + ": ...\" is missing above the table"});
    }
}

std::string PartReader::Name(HeaderField field)
{
    const auto* const line = Find(field);
    if (line == nullptr)
    {
        return {};
    }
    std::string name;
    const auto fault = line->Value.empty() ? "the name is empty" : ReadNameCell(line->Value, name);
    if (!fault.empty())
    {
        Fault(*line, fault);
    }
    return name;
}

std::string PartReader::NameOr(HeaderField field, const std::string& other)
{
    return Find(field) == nullptr ? other : Name(field);
}

void PartReader::ReadNames()
{
    part.Names[0] = Name(HeaderField::Part);
    part.Names[1] = NameOr(HeaderField::PartJis, part.Names[0]);
    part.Names[2] = NameOr(HeaderField::PreviousPart, part.Names[0]);
    part.Names[3] = NameOr(HeaderField::PreviousPartJis, part.Names[0]);
}

void PartReader::ReadSizes()
{
    auto& eia = part.Names[FirstSizeCodeField];
    auto& jis = part.Names[FirstSizeCodeField + 1];
    eia = Name(HeaderField::Size);
    jis = Name(HeaderField::SizeJis);
    const auto* const size = Find(HeaderField::Size);
    if (eia.empty() || Find(HeaderField::SizeJis) != nullptr)
    {
        return;
    }
    jis = jisSizeOf(eia);
    jis = jis.empty() ? std::string(JisSizeOf(eia).value_or("")) : jis;
    if (jis.empty())
    {
        Fault(*size, "its JIS name is not known: add a line \"# size JIS: ...\"");
    }
}

void PartReader::ReadCharacteristic()
{
    const auto* const line = Find(HeaderField::Characteristic);
    const auto* const found = line == nullptr ? nullptr : FindCharacteristic(line->Value);
    if (found != nullptr)
    {
        std::ranges::copy(found->Names, part.Names.begin() + FirstTccField);
    }
    else if (line != nullptr)
    {
        Fault(*line, "is none of X7R, X5R and Y5V");
    }
}

double PartReader::Positive(HeaderField field, Quantity quantity)
{
    const auto* const line = Find(field);
    if (line == nullptr)
    {
        return 0;
    }
    try
    {
        const double value = ValueOfCell(line->Value, UnitOfCells(quantity, "", takesComma));
        if (value > 0)
        {
            return value;
        }
        Fault(*line, "is not above 0");
    }
    catch (const RequestError& error)
    {
        errors.push_back({line->Line, line->Name, {}, error.Message()});
    }
    return 0;
}

void PartReader::ReadUpperTemperature()
{
    const auto* const line = Find(HeaderField::UpperTemperature);
    part.UpperC = part.Names[FirstTccField] == "X7R" ? UpperOfX7r : UpperOfOthers;
    if (line == nullptr)
    {
        return;
    }
    const double upper = Positive(HeaderField::UpperTemperature, Quantity::Temperature);
    if (upper > LowestHeatingAmbientC && upper <= HottestC)
    {
        part.UpperC = upper;
    }
    else if (upper > 0)
    {
        Fault(*line, "is not between 20 and 200 C");
    }
}
} // namespace

MeasuredPart PartOfHeader(const FileHeader& header, bool takesComma, const JisSizeLookup& jisSizeOf,
                          std::vector<TableError>& errors)
{
    return PartReader(header, takesComma, jisSizeOf, errors).Read();
}

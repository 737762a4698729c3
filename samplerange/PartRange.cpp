#include "samplerange/PartRange.h"

#include "partdata/SpecialParts.h"
#include "samplerange/CapacitanceLaws.h"
#include "samplerange/HeatingLaws.h"
#include "samplerange/PartNumbers.h"
#include "samplerange/SourceTable.h"

#include <algorithm>
#include <stdexcept>
#include <tuple>

namespace
{

const CaseSize& SizeNamed(const std::vector<CaseSize>& sizes, std::string_view name)
{
    const auto found = std::ranges::find(sizes, name, &CaseSize::Eia);
    if (found == sizes.end())
    {
        throw std::runtime_error("no such case size: " + std::string(name));
    }
    return *found;
}

std::vector<PartDesign> DesignParts(const std::vector<CaseSize>& sizes, const std::vector<Family>& families)
{
    std::vector<PartDesign> parts;
    for (const Family& family : families)
    {
        const auto& size = SizeNamed(sizes, family.Size);
        for (const auto picofarads : E6Capacitances(family.LowestPf, family.HighestPf))
        {
            parts.push_back(DesignPart(size, family, picofarads));
        }
    }
    std::ranges::sort(parts, {},
                      [](const PartDesign& part) {
                          return std::tuple(part.Size, FindCharacteristic(part.Characteristic),
                                            part.Picofarads, part.Volts);
                      });
    return parts;
}

void Clear(PartValues& data, ValueGroup group)
{
    std::fill(data.data() + group.First, data.data() + group.Last + 1, 0.0);
}

RangePart MakePart(const PartDesign& design)
{
    const auto& characteristic = CharacteristicNamed(design.Characteristic);
    RangePart part{.PartNum = PartNumbers(design),
                   .SizeCode = {design.Size->Eia, design.Size->Jis},
                   .Tcc = {std::string(characteristic.Names[0]), std::string(characteristic.Names[1])},
                   .Data = {}};
    PartValues data{};
    data[Value::Capacitance] = static_cast<double>(design.Picofarads);
    data[Value::NominalCapacitance] = data[Value::Capacitance];
    data[Value::RatedVoltage] = design.Volts;
    WriteBiasLaw(design, data);
    if (characteristic.Model == CapacitanceModel::Peaked && !IsSpecialPart(part.PartNum[0]))
    {
        WritePeakedModel(design, data);
    }
    else
    {
        WriteTemperaturePolynomial(design, data);
    }
    WriteHeatingLaws(design, data);
    if (design.Data == Measured::Power)
    {
        Clear(data, Values::OfCapacitance);
    }
    if (design.Data == Measured::Capacitance)
    {
        Clear(data, Values::OfPower);
    }
    std::ranges::transform(data, part.Data.begin(), [](double value) { return static_cast<float>(value); });
    return part;
}

} // namespace

std::vector<RangePart> MakePartRange(std::string_view sizes, std::string_view ratings)
{
    const auto caseSizes = ReadSizes(sizes);
    std::vector<RangePart> parts;
    for (const auto& design : DesignParts(caseSizes, ReadFamilies(ratings)))
    {
        parts.push_back(MakePart(design));
    }
    return parts;
}

PairBytes PairOf(const std::vector<RangePart>& parts)
{
    PairBytes pair;
    std::vector<PartNames> names;
    for (const RangePart& part : parts)
    {
        names.push_back({part.PartNum[0], part.PartNum[1], part.PartNum[2], part.PartNum[3], part.SizeCode[0],
                         part.SizeCode[1], part.Tcc[0], part.Tcc[1]});
        AddDataRecord(pair.Data, part.Data);
    }
    pair.Index = IndexText(names, "\n");
    return pair;
}

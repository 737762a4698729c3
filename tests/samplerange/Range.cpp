#include "tests/samplerange/Range.h"
#include "tests/calc/ChartNumbers.h"

#include "calc/Calculate.h"
#include "files/PartLoading.h"
#include "partdata/SpecialParts.h"

#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

const PartTable& Range()
{
    static const PartTable table = ReadPartPair(std::filesystem::path(RANGE_FOLDER) / "halvex.idx",
                                                std::filesystem::path(RANGE_FOLDER) / "halvex.dat");
    return table;
}

std::string ReadRangeFile(std::string_view name)
{
    std::ifstream stream(std::filesystem::path(RANGE_FOLDER) / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

static std::vector<const PartRecord*> PartsFor(int chartType)
{
    std::vector<const PartRecord*> parts;
    for (const PartRecord& part : Range().PartData)
    {
        if (IsAvailable(part, chartType))
        {
            parts.push_back(&part);
        }
    }
    return parts;
}

std::vector<const PartRecord*> PartsWithCapacitance()
{
    return PartsFor(2);
}

std::vector<const PartRecord*> PartsWithPower()
{
    return PartsFor(0);
}

const PartRecord& PartOf(std::string_view size, std::string_view tcc, float picofarads, float volts)
{
    for (const PartRecord& part : Range().PartData)
    {
        if (part.SizeCode[0] == size && part.Tcc[0] == tcc && part.Data[Value::Capacitance] == picofarads &&
            part.Data[Value::RatedVoltage] == volts)
        {
            return part;
        }
    }
    throw std::runtime_error("no such part in the range");
}

bool IsPeaked(const PartRecord& part)
{
    return part.Tcc[0] == "Y5V" && !IsSpecialPart(part.PartNum[0]);
}

float BiasOf(const PartRecord& part, float share)
{
    return part.Data[Value::RatedVoltage] * share;
}

TemperatureRange OperatingRange(const PartRecord& part)
{
    if (part.Tcc[0] == "X7R")
    {
        return {-55, 125};
    }
    return part.Tcc[0] == "X5R" ? TemperatureRange{-55, 85} : TemperatureRange{-30, 85};
}

static ChartRecord CapacitanceChart(ChartId type, const PartRecord& part, std::string_view yAxis,
                                    float biasVolts, float ambientC, CodeView view)
{
    ChartRecord record;
    record.ChartType = NumberOf(type);
    record.XAxisName = type == ChartId::CapacitanceTemperature ? "Temperature" : "DC Bias Voltage";
    record.YAxisName = yAxis;
    record.DCBiasVoltage = biasVolts;
    record.AmbientTemp = ambientC;
    Calculate(part, record, view);
    return record;
}

ChartRecord OverTemperature(const PartRecord& part, std::string_view yAxis, float biasVolts, CodeView view)
{
    return CapacitanceChart(ChartId::CapacitanceTemperature, part, yAxis, biasVolts, 0, view);
}

ChartRecord OverBias(const PartRecord& part, std::string_view yAxis, float ambientC, CodeView view)
{
    return CapacitanceChart(ChartId::CapacitanceDCVoltage, part, yAxis, 0, ambientC, view);
}

double BiasPolynomial(const PartRecord& part, double volts)
{
    double change = 0;
    for (int power = 1; power <= 6; ++power)
    {
        change +=
            static_cast<double>(part.Data[static_cast<std::size_t>(9 - power)]) * std::pow(volts, power);
    }
    return change;
}

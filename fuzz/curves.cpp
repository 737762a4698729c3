/// Any coefficients under any conditions: a curve of finite numbers, a refusal, or one of three errors.

#include "calc/Calculate.h"
#include "fuzz/Require.h"
#include "partdata/RunTimeError.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace
{

constexpr std::array<const char*, 5> Tccs = {"X7R", "X5R", "Y5V", "C0G", ""};
constexpr std::array<const char*, 9> Axes = {"Current",         "Voltage",     "Apparent Power",
                                             "Effective Power", "Frequency",   "Temperature",
                                             "DC Bias Voltage", "Capacitance", "Capacitance Change"};

/// Takes values off the input; zeros once it is used up.
class Input
{
public:
    Input(const std::uint8_t* inputData, std::size_t inputSize)
        : data(inputData)
        , size(inputSize)
    {
    }

    float Single()
    {
        float value = 0;
        const auto bytes = std::min(size, sizeof value);
        std::memcpy(&value, data, bytes);
        Advance(bytes);
        return value;
    }

    std::size_t Below(std::size_t count)
    {
        const std::size_t value = size > 0 ? *data % count : 0;
        Advance(std::min<std::size_t>(size, 1));
        return value;
    }

private:
    void Advance(std::size_t bytes)
    {
        data += bytes;
        size -= bytes;
    }

    const std::uint8_t* data;
    std::size_t size;
};

bool AllFinite(const CurveValues& values)
{
    return std::ranges::all_of(values, [](float value) { return std::isfinite(value); });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    ChartRecord record;
    record.ChartType = static_cast<std::int16_t>(input.Below(4));
    record.XAxisName = Axes[input.Below(Axes.size())];
    record.YAxisName = Axes[input.Below(Axes.size())];
    record.ParameterName = Axes[input.Below(4)];
    const auto view = static_cast<CodeView>(input.Below(2));
    PartRecord part;
    part.Tcc = {Tccs[input.Below(Tccs.size())], ""};
    part.PartNum.fill(input.Below(2) == 0 ? "PLAIN" : "KTU155F51H222ZA01");
    record.DCBiasVoltage = input.Single();
    record.HeatResistance = input.Single();
    record.Frequency = input.Single();
    record.AmbientTemp = input.Single();
    record.ParameterValue = input.Single();
    std::ranges::generate(part.Data, [&input] { return input.Single(); });

    try
    {
        if (Calculate(part, record, view))
        {
            Require(record.XMax == 0 && record.YMax == 0, "a refusal leaves the record as it was");
            return 0;
        }
    }
    catch (const RunTimeError& error)
    {
        Require(error.Number() == 5 || error.Number() == 6 || error.Number() == 11,
                "a calculation raises 5, 6 or 11");
        Require(record.XMax == 0 && record.YMax == 0, "an error leaves the record as it was");
        return 0;
    }
    Require(AllFinite(record.XData) && AllFinite(record.YData), "a curve is finite");
    Require(std::isfinite(record.XMax) && std::isfinite(record.XMin) && std::isfinite(record.YMax) &&
                std::isfinite(record.YMin) && std::isfinite(record.ExtraValue),
            "limits are finite");
    return 0;
}

/// The curves of every chart, beside the same points from the plain formulas with a `pow` for every power at
/// every point, kept in a line's record as well.

#include "bench/Turns.h"
#include "calc/Calculate.h"
#include "tests/calc/ChartNumbers.h"
#include "tests/calc/PlainCurves.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <string>

namespace
{
/// 1000 pF, 50 V, with coefficients of every kind.
PartRecord TypicalPart(std::string_view tcc)
{
    PartRecord part;
    part.Tcc[0] = tcc;
    part.Data = {0,         1000,   50,       -1e-12F,  -2.5e-10F, -1.7e-9F, -3.4e-6F, -7e-4F,   -0.08F,
                 -1.7e-12F, 2e-11F, -3.2e-8F, -1.3e-5F, -2.1e-3F,  -0.13F,   97.5F,    -94.8F,   4.9e-5F,
                 -1.9e-3F,  30.9F,  -2.4e-9F, -4.8e-7F, 1.5e-3F,   1.6e-8F,  -1.8e-6F, 1.2e-3F,  1.64F,
                 1.18F,     1.1e6F, 1.2F,     5.5e-7F,  35,        1.6e2F,   3.1F,     -1.4e-3F, 8.4e-6F,
                 -1.4e-10F, 4e-12F, -3.6e-6F, -1e-6F,   9.5e-6F,   3.4e-4F,  8.8e-4F,  1.9e-3F,  0.13F,
                 0.02F,     -7.2F,  -4.8e-6F, 9e-6F,    1.8e-5F,   -7.7e-5F, 5.4e-5F,  -4.6e-4F, 8.6e-3F,
                 6.8e-3F,   7.4F,   1.6e-7F,  -8e-7F,   -2.7e-6F,  9e-6F,    -1.3e-4F, 3.9e-4F,  0.07F,
                 -0.13F,    2.24F,  125};
    return part;
}

struct Case
{
    std::string_view Tcc;
    ChartId Type;
    const char* XAxisName;
    const char* YAxisName;
    const char* ParameterName = "";
    float ParameterValue = 0;
    CodeView View = CodeView::Eia;
};

ChartRecord RecordOf(const Case& with)
{
    ChartRecord record;
    record.ChartType = NumberOf(with.Type);
    record.XAxisName = with.XAxisName;
    record.YAxisName = with.YAxisName;
    record.ParameterName = with.ParameterName;
    record.ParameterValue = with.ParameterValue;
    record.DCBiasVoltage = 12;
    record.HeatResistance = 80;
    record.Frequency = 100;
    record.AmbientTemp = 40;
    return record;
}

void CalculatePermitted(const PartRecord& part, ChartRecord& record, CodeView view)
{
    if (Calculate(part, record, view))
    {
        throw std::logic_error("the parameter of this benchmark is refused");
    }
}

/// Keeps results that nobody reads from being optimised away.
volatile float lastValue = 0;

/// Writes the points into the record, with axes as long as their largest values.
void Keep(const PlainCurve& curve, ChartRecord& record)
{
    record.XData = curve.XData;
    record.YData = curve.YData;
    record.XMax = std::ranges::max(record.XData);
    record.YMax = std::ranges::max(record.YData);
}

void CompareCurve(const std::string& name, const Case& with)
{
    constexpr int curvesARound = 20;
    const auto part = TypicalPart(with.Tcc);
    auto record = RecordOf(with);
    CompareInTurns(
        "curve-" + name, 200,
        [&](int)
        {
            return MicrosecondsOf(
                [&]
                {
                    for (int i = 0; i < curvesARound; ++i)
                    {
                        CalculatePermitted(part, record, with.View);
                        lastValue = record.YData.back();
                    }
                });
        },
        [&](int)
        {
            return MicrosecondsOf(
                [&]
                {
                    for (int i = 0; i < curvesARound; ++i)
                    {
                        Keep(PlainCurveOf(part, record, with.View), record);
                        lastValue = record.YData.back();
                    }
                });
        });
}

constexpr auto rise = ChartId::TemperatureRise;
constexpr auto allowable = ChartId::AllowablePower;
constexpr auto overTemperature = ChartId::CapacitanceTemperature;
constexpr auto overBias = ChartId::CapacitanceDCVoltage;
constexpr auto jis = CodeView::Jis;

const std::pair<const char*, Case> cases[] = {
    {"polynomial-temperature", {"X7R", overTemperature, "Temperature", "Capacitance Change"}},
    {"polynomial-temperature-jis", {"X7R", overTemperature, "Temperature", "Capacitance Change", "", 0, jis}},
    {"polynomial-bias", {"X7R", overBias, "DC Bias Voltage", "Capacitance"}},
    {"polynomial-bias-jis", {"X7R", overBias, "DC Bias Voltage", "Capacitance Change", "", 0, jis}},
    {"peaked-temperature", {"Y5V", overTemperature, "Temperature", "Capacitance Change"}},
    {"peaked-temperature-jis", {"Y5V", overTemperature, "Temperature", "Capacitance Change", "", 0, jis}},
    {"peaked-bias", {"Y5V", overBias, "DC Bias Voltage", "Capacitance"}},
    {"peaked-bias-jis", {"Y5V", overBias, "DC Bias Voltage", "Capacitance Change", "", 0, jis}},
    {"rise-current", {"X7R", rise, "Current", "Temperature Rise"}},
    {"rise-voltage", {"X7R", rise, "Voltage", "Temperature Rise"}},
    {"rise-apparent-power", {"X7R", rise, "Apparent Power", "Temperature Rise"}},
    {"rise-effective-power", {"X7R", rise, "Effective Power", "Temperature Rise"}},
    {"rise-frequency-current", {"X7R", rise, "Frequency", "Temperature Rise", "Current", 0.1F}},
    {"rise-frequency-voltage", {"X7R", rise, "Frequency", "Temperature Rise", "Voltage", 0.1F}},
    {"rise-frequency-apparent-power",
     {"X7R", rise, "Frequency", "Temperature Rise", "Apparent Power", 0.001F}},
    {"rise-frequency-effective-power",
     {"X7R", rise, "Frequency", "Temperature Rise", "Effective Power", 0.1F}},
    {"allowable-current", {"X7R", allowable, "Frequency", "Current"}},
    {"allowable-voltage", {"X7R", allowable, "Frequency", "Voltage"}},
    {"allowable-apparent-power", {"X7R", allowable, "Frequency", "Apparent Power"}},
    {"allowable-effective-power", {"X7R", allowable, "Frequency", "Effective Power"}},
};
} // namespace

int main()
{
    for (const auto& [name, with] : cases)
    {
        CompareCurve(name, with);
    }
    return 0;
}

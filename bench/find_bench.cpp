/// Questions to the longest possible part list, from the filter to the sorted answer, beside a bare loop that
/// works out the same values by the plain formulas and keeps them, without a rule, a reason or an order.

#include "bench/Turns.h"
#include "calc/AllowablePower.h"
#include "files/PartLoading.h"
#include "find/FoundOrder.h"
#include "find/Likeness.h"
#include "find/PartFilter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

namespace
{
/// The parts of the sample range over and over; their names stay in its text.
PartTable LongestRange(const PartTable& sample)
{
    PartTable table;
    for (std::size_t i = 0; i < MostParts; ++i)
    {
        table.PartData.push_back(sample.PartData[i % sample.PartData.size()]);
    }
    table.PartMax = static_cast<std::int16_t>(MostParts - 1);
    return table;
}

using Data = std::array<float, DataValues>;

double Polynomial(const Data& data, ValueGroup group, double x)
{
    double sum = 0;
    for (std::size_t i = group.First; i <= group.Last; ++i)
    {
        sum = (sum + data[i]) * x;
    }
    return sum;
}

double Quadratic(const Data& data, ValueGroup group, double x)
{
    return (data[group.First] * x + data[group.First + 1]) * x + data[group.First + 2];
}

/// The change of capacitance in percent.
double BareChange(const PartRecord& part, double volts, double celsius)
{
    const Data& data = part.Data;
    const double b = Polynomial(data, Values::BiasPolynomial, volts);
    if (part.Tcc[0] != "Y5V")
    {
        const double p = Polynomial(data, Values::TemperaturePolynomial, celsius - 25);
        return p * b / 100 + b + p;
    }
    const double distance = celsius - Quadratic(data, Values::PeakTemperature, volts);
    const bool isAbove = distance >= 0;
    const double decay = Quadratic(data, isAbove ? Values::DecayAbove : Values::DecayBelow, volts);
    const double exponent = data[isAbove ? Value::ExponentAbove : Value::ExponentBelow];
    return (b + 100) * data[Value::PeakAmplitude] / 100 *
               std::exp(-decay * std::pow(std::abs(distance), exponent)) +
           data[Value::PeakOffset];
}

double Surface(const Data& data, ValueGroup group, double r, double t)
{
    const auto row = [&](std::size_t i) {
        return Quadratic(data, {group.First + i, group.First + i + 2}, r);
    };
    return (row(0) * t + row(3)) * t + row(6);
}

/// Keeps results that nobody reads from being optimised away.
volatile double lastValue = 0;

/// What a list tells of a part, in no order.
using BareRow = std::array<double, 12>;

void BareHeating(BareRow& row, const PartRecord& part, const OperatingPoint& at)
{
    const Data& data = part.Data;
    const double hertz = at.Kilohertz->Low * 1000.0;
    const double t = at.AmbientC.Low - 20.0;
    const double r = at.BiasVolts.Low / double{data[Value::RatedVoltage]};
    const auto term = [&](Value::Index constant, Value::Index linear, Value::Index square)
    { return data[constant] + t * data[linear] + t * t * data[square]; };
    const double kI = term(Value::CurrentPerF, Value::CurrentTPerF, Value::CurrentT2PerF) / hertz +
                      term(Value::Current, Value::CurrentT, Value::CurrentT2) +
                      hertz * term(Value::CurrentF, Value::CurrentTF, Value::CurrentT2F);
    const double s3 = Surface(data, Values::VoltageExponentSurface, r, t);
    const double kV = std::pow(10, Surface(data, Values::AmplitudeSurface, r, t)) *
                      std::pow(std::log10(hertz), Surface(data, Values::FrequencyExponentSurface, r, t));
    const double bound = AllowableVoltageBound(data[Value::RatedVoltage], at.BiasVolts.Low);
    const double free = std::pow(20 / kV, 1 / s3);
    const double rise = free < bound ? 20 : kV * std::pow(bound, s3);
    row[2] = std::sqrt(20 / kI);
    row[3] = std::min(free, bound);
    row[4] = row[3] * std::sqrt(rise / kI);
    row[5] = rise / data[Value::HeatResistance];
    row[6] = kI / data[Value::HeatResistance];
    row[7] = kI * at.Load->Value * at.Load->Value;
}

void Bare(const PartTable& parts, const FindQuestion& question)
{
    const OperatingPoint& at = question.At;
    std::vector<BareRow> rows;
    rows.reserve(parts.PartData.size());
    for (const PartRecord& part : parts.PartData)
    {
        BareRow& row = rows.emplace_back();
        const double change = BareChange(part, at.BiasVolts.Low, at.AmbientC.Low);
        row[0] = part.Data[Value::NominalCapacitance] * (1 + change / 100);
        row[1] = 100 + change;
        if (at.Load)
        {
            BareHeating(row, part, at);
            const double warm = BareChange(part, at.BiasVolts.Low, at.AmbientC.Low + row[7]);
            row[8] = part.Data[Value::NominalCapacitance] * (1 + warm / 100);
        }
    }
    lastValue = rows.back()[0];
}

std::size_t fitting = 0;

void Ours(const PartTable& parts, const FindQuestion& question)
{
    const auto candidates = FilterParts(parts, {.Text = "k", .TakesPartsWithoutData = true});
    auto found = FindParts(candidates, question);
    SortFound(found.Parts, parts, LeastBoard(), CodeView::Eia);
    fitting = found.Parts.size();
}

void Compare(const std::string& name, const PartTable& parts, const FindQuestion& question)
{
    std::vector<double> times;
    CompareInTurns(
        name, 40,
        [&](int)
        {
            times.push_back(MicrosecondsOf([&] { Ours(parts, question); }));
            return times.back();
        },
        [&](int) { return MicrosecondsOf([&] { Bare(parts, question); }); });
    std::printf("%s: %zu of %zu parts, quickest answer %.1f ms\n", name.c_str(), fitting,
                parts.PartData.size(), std::ranges::min(times) / 1000);
}
/// The answer over ranges beside that at a point.
void CompareWithPoint(const std::string& name, const PartTable& parts, const FindQuestion& ranges,
                      const FindQuestion& point)
{
    std::vector<double> times;
    CompareInTurns(
        name, 40,
        [&](int)
        {
            times.push_back(MicrosecondsOf([&] { Ours(parts, ranges); }));
            return times.back();
        },
        [&](int) { return MicrosecondsOf([&] { Ours(parts, point); }); });
    std::printf("%s: %zu of %zu parts, quickest answer %.1f ms\n", name.c_str(), fitting,
                parts.PartData.size(), std::ranges::min(times) / 1000);
}
/// Who may stand for a part of the sample, over its own conditions, beside the answer at a point.
void CompareLike(const std::string& name, const PartTable& parts, std::size_t original,
                 const FindQuestion& point)
{
    const auto all = FilterParts(parts, {.TakesPartsWithoutData = true});
    const LikeQuestion question{.Original = &parts.PartData[original]};
    std::vector<double> times;
    CompareInTurns(
        name, 20,
        [&](int)
        {
            times.push_back(MicrosecondsOf([&] { fitting = FindLike(all, question).Parts.size(); }));
            return times.back();
        },
        [&](int) { return MicrosecondsOf([&] { Ours(parts, point); }); });
    std::printf("%s: %zu of %zu parts, quickest answer %.1f ms\n", name.c_str(), fitting,
                parts.PartData.size(), std::ranges::min(times) / 1000);
}
} // namespace

int main()
{
    const auto sample = LoadPartData(SAMPLE_RANGE);
    const auto parts = LongestRange(sample);
    Compare("find-capacitance", parts, {.At = {.BiasVolts = 5, .AmbientC = 60}});
    const OperatingPoint loaded = {.BiasVolts = 5,
                                   .AmbientC = 60,
                                   .Kilohertz = 300.0F,
                                   .Load = AcLoad{.Kind = Quantity::Current, .Value = 0.5F}};
    Compare("find-load", parts, {.At = loaded});
    const OperatingPoint ranges = {.BiasVolts = {4.5F, 5.5F},
                                   .AmbientC = {-20, 60},
                                   .Kilohertz = ConditionRange(270, 330),
                                   .Load = loaded.Load,
                                   .Tolerance = {10, 10}};
    CompareWithPoint("find-ranges", parts, {.At = ranges}, {.At = loaded});
    CompareWithPoint("find-ranges-capacitance", parts,
                     {.At = {.BiasVolts = {0, 6.3F}, .AmbientC = {-20, 85}}},
                     {.At = {.BiasVolts = 5, .AmbientC = 60}});
    const auto placeOf = [&](std::string_view part)
    { return static_cast<std::size_t>(*sample.PartIndex[0].Find(part)); };
    CompareLike("like-product", parts, placeOf("KTS188B51A475MA01"), {.At = loaded});
    CompareLike("like-peaked", parts, placeOf("KTS21JF51A106ZA01"), {.At = loaded});
    Compare("find-bank", parts,
            {.At = loaded, .Wanted = {.LeastCapacitance = 1e6F, .Parallel = Bank{.IsFewest = true}}});
    return 0;
}

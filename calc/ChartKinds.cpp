#include "calc/ChartKinds.h"

#include "calc/AllowablePower.h"
#include "calc/Capacitance.h"
#include "calc/LossResistance.h"
#include "calc/PowerModel.h"
#include "calc/TemperatureRise.h"
#include "partdata/Availability.h"
#include "partdata/RunTimeError.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace
{
// ---- Divisions ----

/// To the nearest whole number, halves to even.
int Rounded(double divisions)
{
    return static_cast<int>(std::nearbyint(std::clamp(divisions, 0.0, double{mostDivisions})));
}

int NoDivisions(double)
{
    return 0;
}

int NoYDivisions(Quantity, double)
{
    return 0;
}

template <int Count> int Fixed(double)
{
    return Count;
}

template <int Count> int FixedY(Quantity, double)
{
    return Count;
}

int OnePer25Degrees(double span)
{
    return Rounded(span / 25);
}

int CapacitanceDivisions(Quantity y, double span)
{
    if (y == Quantity::CapacitanceChange)
    {
        return Rounded(span <= 20 ? span / 5 : span / 10);
    }
    return y == Quantity::Capacitance ? 5 : 0;
}

// ---- Laws ----

PowerModel ModelOf(const CurveInput& input)
{
    return PowerModelOf(input.Part, input.Line.DCBiasVoltage, input.Line.AmbientTemp,
                        input.Line.HeatResistance);
}

double HertzOf(const CurveInput& input)
{
    return double{input.Line.Frequency} * KindOf(Quantity::Frequency).StoredPerShown;
}

CurveResult RiseOfLoad(const CurveInput& input)
{
    return RiseOverLoad(ModelOf(input), RatedVoltage(input.Part), HertzOf(input), input.X);
}

std::optional<double> RiseAtLoad(const CurveInput& input, double load)
{
    return RiseAt(ModelOf(input), input.X, load, HertzOf(input));
}

CurveResult RiseOfFrequency(const CurveInput& input)
{
    return RiseOverFrequency(ModelOf(input), RatedVoltage(input.Part),
                             QuantityNamed(input.Line.ParameterName), input.Line.ParameterValue);
}

std::optional<double> RiseAtFrequency(const CurveInput& input, double hertz)
{
    return RiseAt(ModelOf(input), QuantityNamed(input.Line.ParameterName), input.Line.ParameterValue, hertz);
}

double VoltageBoundOf(const CurveInput& input)
{
    return AllowableVoltageBound(RatedVoltage(input.Part), input.Line.DCBiasVoltage);
}

double PermittedRiseOf(const CurveInput& input)
{
    return dTallow(input.Part.Data[Value::UpperTemperature], input.Line.AmbientTemp);
}

CurveResult LargestLoads(const CurveInput& input)
{
    return AllowableLoad(ModelOf(input), VoltageBoundOf(input), PermittedRiseOf(input), input.Y);
}

std::optional<double> LargestLoadAt(const CurveInput& input, double hertz)
{
    return AllowableLoadAt(ModelOf(input), VoltageBoundOf(input), PermittedRiseOf(input), input.Y, hertz);
}

CurveResult LossOfFrequency(const CurveInput& input)
{
    return LossResistanceOverFrequency(ModelOf(input));
}

std::optional<double> LossAtFrequency(const CurveInput& input, double hertz)
{
    return ModelOf(input).LossResistance(hertz);
}

CurveResult CapacitanceOfTemperature(const CurveInput& input)
{
    return CalcCapTemperature(input.Part, input.Line.DCBiasVoltage, input.Y, input.View);
}

std::optional<double> CapacitanceAtTemperature(const CurveInput& input, double celsius)
{
    return CapacitanceAt(input.Part, input.Line.DCBiasVoltage, celsius, input.Y, input.View);
}

CurveResult CapacitanceOfVoltage(const CurveInput& input)
{
    return CalcCapDCVoltage(input.Part, input.Line.AmbientTemp, input.Y, input.View);
}

std::optional<double> CapacitanceAtVoltage(const CurveInput& input, double volts)
{
    return CapacitanceAt(input.Part, volts, input.Line.AmbientTemp, input.Y, input.View);
}

// ---- The chart types ----

constexpr ConditionUse bias = {Condition::DCBias, RefuseDCBias};
constexpr ConditionUse biasBelowRated = {Condition::DCBias, RefuseDCBiasAtRated};
constexpr ConditionUse heatResistance = {Condition::HeatResistance, RefuseHeatResistance};
constexpr ConditionUse heatingAmbient = {Condition::AmbientTemperature, RefuseHeatingAmbient};
constexpr ConditionUse classAmbient = {Condition::AmbientTemperature, RefuseClassAmbient};
constexpr ConditionUse frequency = {Condition::Frequency, RefuseFrequency};
constexpr ConditionUse parameter = {Condition::Parameter, RefuseNoNumber};

constexpr std::array loadAxes = {Quantity::Current, Quantity::RmsVoltage, Quantity::ApparentPower,
                                 Quantity::EffectivePower};
constexpr std::array frequencyAxis = {Quantity::Frequency};
constexpr std::array riseAxis = {Quantity::TemperatureRise};
constexpr std::array temperatureAxis = {Quantity::Temperature};
constexpr std::array biasAxis = {Quantity::DCVoltage};
constexpr std::array lossAxis = {Quantity::LossResistance};
constexpr std::array capacitanceAxes = {Quantity::Capacitance, Quantity::CapacitanceChange};

constexpr std::array riseOverLoad = {bias, heatResistance, frequency, heatingAmbient};
constexpr std::array riseOverFrequency = {bias, heatResistance, heatingAmbient, parameter};
constexpr std::array largestLoad = {biasBelowRated, heatResistance, heatingAmbient};
constexpr std::array capacitanceOverTemperature = {bias};
constexpr std::array lossOverFrequency = {heatingAmbient};
constexpr std::array capacitanceOverBias = {classAmbient};

constexpr std::array<ChartSweep, 2> riseSweeps = {{
    {.XAxes = loadAxes,
     .Conditions = riseOverLoad,
     .XDivisions = Fixed<5>,
     .YDivisions = FixedY<10>,
     .CurveOf = RiseOfLoad,
     .LawAt = RiseAtLoad},
    {.XAxes = frequencyAxis,
     .Conditions = riseOverFrequency,
     .XKind = AxisKind::Logarithmic,
     .XDivisions = Fixed<5>,
     .YDivisions = FixedY<8>,
     .CurveOf = RiseOfFrequency,
     .LawAt = RiseAtFrequency},
}};
constexpr std::array<ChartSweep, 1> largestLoadSweeps = {{
    {.XAxes = frequencyAxis,
     .Conditions = largestLoad,
     .XKind = AxisKind::Logarithmic,
     .YKind = AxisKind::Logarithmic,
     .XDivisions = NoDivisions,
     .YDivisions = NoYDivisions,
     .CurveOf = LargestLoads,
     .LawAt = LargestLoadAt},
}};
constexpr std::array<ChartSweep, 1> temperatureSweeps = {{
    {.XAxes = temperatureAxis,
     .Conditions = capacitanceOverTemperature,
     .XDivisions = OnePer25Degrees,
     .YDivisions = CapacitanceDivisions,
     .CurveOf = CapacitanceOfTemperature,
     .LawAt = CapacitanceAtTemperature},
}};
constexpr std::array<ChartSweep, 1> biasSweeps = {{
    {.XAxes = biasAxis,
     .Conditions = capacitanceOverBias,
     .XDivisions = Fixed<5>,
     .YDivisions = CapacitanceDivisions,
     .CurveOf = CapacitanceOfVoltage,
     .LawAt = CapacitanceAtVoltage},
}};
constexpr std::array<ChartSweep, 1> lossSweeps = {{
    {.XAxes = frequencyAxis,
     .Conditions = lossOverFrequency,
     .XKind = AxisKind::Logarithmic,
     .YKind = AxisKind::Logarithmic,
     .XDivisions = NoDivisions,
     .YDivisions = NoYDivisions,
     .CurveOf = LossOfFrequency,
     .LawAt = LossAtFrequency},
}};

/// In the order of their numbers.
constexpr std::array<ChartKind, 5> chartKinds = {{
    {.Caption = "Temperature Rise Characteristics",
     .CommandName = "temperature-rise",
     .Needs = Values::OfPower,
     .YAxes = riseAxis,
     .Sweeps = riseSweeps,
     .RecommendsRise = true},
    {.Caption = "Allowable power",
     .CommandName = "allowable-power",
     .Needs = Values::OfPower,
     .YAxes = loadAxes,
     .Sweeps = largestLoadSweeps,
     .TellsLargestValue = true},
    {.Caption = "Capacitance-Temperature Characteristics",
     .CommandName = "capacitance-temperature",
     .Needs = Values::OfCapacitance,
     .YAxes = capacitanceAxes,
     .Sweeps = temperatureSweeps},
    {.Caption = "Capacitance-DC Voltage Characteristics",
     .CommandName = "capacitance-dc-voltage",
     .Needs = Values::OfCapacitance,
     .YAxes = capacitanceAxes,
     .Sweeps = biasSweeps},
    {.Caption = "Loss Resistance",
     .CommandName = "loss-resistance",
     .Needs = Values::OfPower,
     .YAxes = lossAxis,
     .Sweeps = lossSweeps,
     .IsOnForm = false},
}};

[[noreturn]] void FailAt(const std::string& what)
{
    constexpr auto number = RunTimeErrorNumber::InvalidProcedureCall;
    throw RunTimeError(number, std::string(DescriptionOf(number)) + ": no " + what);
}
} // namespace

bool ChartSweep::Uses(Condition condition) const
{
    return std::ranges::find(Conditions, condition, &ConditionUse::Id) != Conditions.end();
}

std::span<const ChartKind> ChartKinds()
{
    return chartKinds;
}

std::span<const ChartKind> FormChartKinds()
{
    const auto end = std::ranges::find(chartKinds, false, &ChartKind::IsOnForm);
    return {chartKinds.begin(), end};
}

const ChartKind* FindChartKind(int number)
{
    const bool exists = number >= 0 && static_cast<std::size_t>(number) < chartKinds.size();
    return exists ? &chartKinds[static_cast<std::size_t>(number)] : nullptr;
}

const ChartKind& ChartKindOf(int number)
{
    const ChartKind* kind = FindChartKind(number);
    if (kind == nullptr)
    {
        FailAt("chart type " + std::to_string(number));
    }
    return *kind;
}

std::int16_t NumberOf(const ChartKind& kind)
{
    return static_cast<std::int16_t>(&kind - chartKinds.data());
}

std::vector<Quantity> XAxesOf(const ChartKind& kind)
{
    std::vector<Quantity> axes;
    for (const ChartSweep& sweep : kind.Sweeps)
    {
        axes.insert(axes.end(), sweep.XAxes.begin(), sweep.XAxes.end());
    }
    return axes;
}

const ChartSweep* FindSweep(const ChartKind& kind, Quantity x)
{
    const auto found =
        std::ranges::find_if(kind.Sweeps, [x](const ChartSweep& sweep)
                             { return std::ranges::find(sweep.XAxes, x) != sweep.XAxes.end(); });
    return found != kind.Sweeps.end() ? &*found : nullptr;
}

const ChartSweep* FindSweep(int chartNumber, std::string_view xAxisName)
{
    const ChartKind* kind = FindChartKind(chartNumber);
    const auto x = FindQuantity(xAxisName);
    return kind != nullptr && x ? FindSweep(*kind, *x) : nullptr;
}

const ChartSweep& SweepOf(int chartNumber, std::string_view xAxisName)
{
    const ChartKind& kind = ChartKindOf(chartNumber);
    const ChartSweep* sweep = FindSweep(kind, QuantityNamed(xAxisName));
    if (sweep == nullptr)
    {
        FailAt("axis " + std::string(xAxisName) + " of " + std::string(kind.Caption));
    }
    return *sweep;
}

bool IsAvailable(const PartRecord& part, int chartNumber)
{
    const ChartKind* kind = FindChartKind(chartNumber);
    return kind != nullptr && CanBeListed(part) && HasData(part, kind->Needs);
}

ConditionRule RuleOf(const ChartKind& kind, Condition condition)
{
    for (const ChartSweep& sweep : kind.Sweeps)
    {
        const auto use = std::ranges::find(sweep.Conditions, condition, &ConditionUse::Id);
        if (use != sweep.Conditions.end())
        {
            return use->Refuse;
        }
    }
    return KindOf(condition).Refuse;
}

#include "calc/Conditions.h"

#include "calc/Bounds.h"
#include "calc/NumberText.h"
#include "partdata/Characteristic.h"

#include <array>
#include <limits>

static constexpr const char* lineBreak = "\r\n";
static constexpr std::string_view ambientName = "Ambient Temperature";

/// In the order of `Condition`.
static constexpr std::array<ConditionKind, ConditionCount> conditions = {{
    {Condition::DCBias, Quantity::DCVoltage, "DC Bias Voltage", "dcBias", "DCBiasVol",
     &ChartRecord::DCBiasVoltage, RefuseDCBias},
    {Condition::Frequency, Quantity::Frequency, "Frequency", "frequency", "Frequency",
     &ChartRecord::Frequency, RefuseFrequency},
    {Condition::HeatResistance, Quantity::HeatResistance, "Heat Resistance", "heatResistance",
     "HeatResistance", &ChartRecord::HeatResistance, RefuseHeatResistance},
    {Condition::AmbientTemperature, Quantity::Temperature, ambientName, "ambient", "AmbientTemp",
     &ChartRecord::AmbientTemp, RefuseHeatingAmbient},
    {Condition::Parameter, std::nullopt, "Parameter", "parameterValue", "Parameter",
     &ChartRecord::ParameterValue, RefuseNoNumber},
}};

std::span<const ConditionKind, ConditionCount> ConditionKinds()
{
    return conditions;
}

const ConditionKind& KindOf(Condition condition)
{
    return conditions.at(static_cast<std::size_t>(condition));
}

std::string FirstEntry(Condition condition, const PartRecord& part, CodeView view)
{
    switch (condition)
    {
    case Condition::HeatResistance:
        return NumberText(part.Data[Value::HeatResistance]);
    case Condition::AmbientTemperature:
        return NumberText(ReferenceC(view));
    default:
        return {};
    }
}

static std::string Invalid(std::string_view condition, const std::string& permitted)
{
    return std::string(condition) + " is invalid!" + lineBreak + "Please enter a Number from " + permitted;
}

/// Nothing when the entry is a number that the test accepts, else the message. Hardly any entry is refused,
/// and wording a message is most of what judging one would cost.
template <class Accepts, class Message>
static Refusal Judge(std::string_view entry, EntryLocale locale, Accepts accepts, Message message)
{
    const auto value = ReadEntry(entry, locale.CommaIsDecimal);
    return value && accepts(*value) ? std::nullopt : Refusal(message());
}

namespace
{
/// From the lowest to the highest, both included.
struct Range
{
    float Lowest;
    float Highest;

    bool Holds(float value) const { return value >= Lowest && value <= Highest; }
};

Range BiasRange(const PartRecord& part)
{
    return {.Lowest = 0, .Highest = part.Data[Value::RatedVoltage]};
}

Range HeatingRange(const PartRecord& part)
{
    return {.Lowest = LowestHeatingAmbientC, .Highest = part.Data[Value::UpperTemperature]};
}

/// What can be entered for a characteristic that is not listed, in °C.
constexpr TemperatureRange unlistedRange = {.MinC = -55, .MaxC = 125};

Range ClassRange(const PartRecord& part, CodeView view)
{
    const auto range = ClassAmbientRange(part, view);
    return {.Lowest = range.MinC, .Highest = range.MaxC};
}

/// In kHz.
Range FrequencyRange()
{
    return {.Lowest = ShownValue(Quantity::Frequency, LowestFrequencyHz),
            .Highest = ShownValue(Quantity::Frequency, HighestFrequencyHz)};
}
} // namespace

bool IsDCBiasPermitted(float volts, const PartRecord& part)
{
    return BiasRange(part).Holds(volts);
}

bool IsDCBiasBelowRated(float volts, const PartRecord& part)
{
    return volts >= 0 && volts < part.Data[Value::RatedVoltage];
}

bool IsHeatResistancePermitted(float perWatt)
{
    return perWatt > 0 && perWatt <= std::numeric_limits<float>::max();
}

bool IsHeatingAmbientPermitted(float celsius, const PartRecord& part)
{
    return HeatingRange(part).Holds(celsius);
}

TemperatureRange ClassAmbientRange(const PartRecord& part, CodeView view)
{
    const auto* const characteristic = FindCharacteristic(part.Tcc[0]);
    return characteristic == nullptr ? unlistedRange : characteristic->RangeIn(view);
}

bool IsClassAmbientPermitted(float celsius, const PartRecord& part, CodeView view)
{
    return ClassRange(part, view).Holds(celsius);
}

bool IsFrequencyPermitted(float kilohertz)
{
    return FrequencyRange().Holds(kilohertz);
}

/// Nothing when the entry lies in the range.
static Refusal JudgeRange(std::string_view entry, EntryLocale locale, Range range, std::string_view condition,
                          std::string_view unit)
{
    return Judge(
        entry, locale, [=](float v) { return range.Holds(v); },
        [&]
        {
            return Invalid(condition,
                           NumberText(range.Lowest) + " to " + NumberText(range.Highest) + std::string(unit));
        });
}

Refusal RefuseDCBias(std::string_view entry, const PartRecord& part, CodeView, EntryLocale locale)
{
    return JudgeRange(entry, locale, BiasRange(part), NameOf(Quantity::DCVoltage), "[V]");
}

Refusal RefuseDCBiasAtRated(std::string_view entry, const PartRecord& part, CodeView, EntryLocale locale)
{
    return Judge(
        entry, locale, [&](float v) { return IsDCBiasBelowRated(v, part); },
        [&]
        {
            return Invalid(NameOf(Quantity::DCVoltage),
                           "0 under " + NumberText(part.Data[Value::RatedVoltage]) + "[V]");
        });
}

Refusal RefuseHeatResistance(std::string_view entry, const PartRecord&, CodeView, EntryLocale locale)
{
    return Judge(entry, locale, IsHeatResistancePermitted,
                 [] { return Invalid(NameOf(Quantity::HeatResistance), "0 [C/W]"); });
}

Refusal RefuseHeatingAmbient(std::string_view entry, const PartRecord& part, CodeView, EntryLocale locale)
{
    return JudgeRange(entry, locale, HeatingRange(part), ambientName, " [C]");
}

Refusal RefuseClassAmbient(std::string_view entry, const PartRecord& part, CodeView view, EntryLocale locale)
{
    return JudgeRange(entry, locale, ClassRange(part, view), ambientName, " [C]");
}

Refusal RefuseFrequency(std::string_view entry, const PartRecord&, CodeView, EntryLocale locale)
{
    return JudgeRange(entry, locale, FrequencyRange(), NameOf(Quantity::Frequency), " [kHz]");
}

Refusal RefuseNoNumber(std::string_view entry, const PartRecord&, CodeView, EntryLocale locale)
{
    return Judge(
        entry, locale, [](float) { return true; },
        [] { return "A Non-numerical value exists where numerical value should be in."; });
}

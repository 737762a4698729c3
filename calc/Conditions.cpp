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

/// Nothing when the entry lies from `lowest` to `highest`, both included.
static Refusal JudgeRange(std::string_view entry, EntryLocale locale, float lowest, float highest,
                          std::string_view condition, std::string_view unit)
{
    return Judge(
        entry, locale, [=](float v) { return v >= lowest && v <= highest; },
        [&] {
            return Invalid(condition, NumberText(lowest) + " to " + NumberText(highest) + std::string(unit));
        });
}

Refusal RefuseDCBias(std::string_view entry, const PartRecord& part, CodeView, EntryLocale locale)
{
    return JudgeRange(entry, locale, 0, part.Data[Value::RatedVoltage], NameOf(Quantity::DCVoltage), "[V]");
}

Refusal RefuseDCBiasAtRated(std::string_view entry, const PartRecord& part, CodeView, EntryLocale locale)
{
    const float rated = part.Data[Value::RatedVoltage];
    return Judge(
        entry, locale, [=](float v) { return v >= 0 && v < rated; },
        [=] { return Invalid(NameOf(Quantity::DCVoltage), "0 under " + NumberText(rated) + "[V]"); });
}

Refusal RefuseHeatResistance(std::string_view entry, const PartRecord&, CodeView, EntryLocale locale)
{
    return Judge(
        entry, locale, [](float v) { return v > 0 && v <= std::numeric_limits<float>::max(); },
        [] { return Invalid(NameOf(Quantity::HeatResistance), "0 [C/W]"); });
}

Refusal RefuseHeatingAmbient(std::string_view entry, const PartRecord& part, CodeView, EntryLocale locale)
{
    return JudgeRange(entry, locale, LowestHeatingAmbientC, part.Data[Value::UpperTemperature], ambientName,
                      " [C]");
}

/// What can be entered for a characteristic that is not listed, in °C.
static constexpr TemperatureRange unlistedRange = {.MinC = -55, .MaxC = 125};

Refusal RefuseClassAmbient(std::string_view entry, const PartRecord& part, CodeView view, EntryLocale locale)
{
    const auto* const characteristic = FindCharacteristic(part.Tcc[0]);
    const auto range = characteristic == nullptr ? unlistedRange : characteristic->RangeIn(view);
    return JudgeRange(entry, locale, range.MinC, range.MaxC, ambientName, " [C]");
}

Refusal RefuseFrequency(std::string_view entry, const PartRecord&, CodeView, EntryLocale locale)
{
    constexpr auto frequency = Quantity::Frequency;
    return JudgeRange(entry, locale, ShownValue(frequency, LowestFrequencyHz),
                      ShownValue(frequency, HighestFrequencyHz), NameOf(frequency), " [kHz]");
}

Refusal RefuseNoNumber(std::string_view entry, const PartRecord&, CodeView, EntryLocale locale)
{
    return Judge(
        entry, locale, [](float) { return true; },
        [] { return "A Non-numerical value exists where numerical value should be in."; });
}

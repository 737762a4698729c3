#include "calc/ConditionRules.h"

#include "calc/NumberText.h"
#include "partdata/Characteristic.h"

#include <limits>
#include <utility>

static constexpr const char* LineBreak = "\r\n";

static std::string Invalid(const char* quantity, const std::string& permitted)
{
    return std::string(quantity) + " is invalid!" + LineBreak + "Please enter a Number from " + permitted;
}

/// Nothing when the entry is a number that the test accepts, else the message.
template <class Accepts>
static Refusal Judge(std::string_view entry, EntryLocale locale, Accepts accepts, std::string message)
{
    const auto value = ReadEntry(entry, locale.CommaIsDecimal);
    return value && accepts(*value) ? std::nullopt : Refusal(std::move(message));
}

Refusal RefuseDCBiasVol(std::string_view entry, const PartRecord& part, std::int16_t chartType,
                        EntryLocale locale)
{
    const float rated = part.Data[Value::RatedVoltage];
    const bool below = chartType == 1;
    const auto permitted = (below ? "0 under " : "0 to ") + NumberText(rated) + "[V]";
    return Judge(
        entry, locale, [=](float v) { return v >= 0 && (below ? v < rated : v <= rated); },
        Invalid("DC Bias Voltage", permitted));
}

Refusal RefuseFrequency(std::string_view entry, EntryLocale locale)
{
    return Judge(
        entry, locale, [](float v) { return v >= 10 && v <= 1000; },
        Invalid("Frequency", "10 to 1000 [kHz]"));
}

Refusal RefuseHeatResistance(std::string_view entry, EntryLocale locale)
{
    return Judge(
        entry, locale, [](float v) { return v > 0 && v <= std::numeric_limits<float>::max(); },
        Invalid("Heat Resistance", "0 [C/W]"));
}

Refusal RefuseAmbientTemp1(std::string_view entry, const PartRecord& part, EntryLocale locale)
{
    const float upper = part.Data[Value::UpperTemperature];
    return Judge(
        entry, locale, [=](float v) { return v >= 20 && v <= upper; },
        Invalid("Ambient Temperature", "20 to " + NumberText(upper) + " [C]"));
}

/// What can be entered for a characteristic that is not listed, in °C.
static constexpr TemperatureRange UnlistedRange = {.MinC = -55, .MaxC = 125};

static TemperatureRange EntryRangeOf(const PartRecord& part, CodeView view)
{
    const auto* const characteristic = FindCharacteristic(part.Tcc[0]);
    return characteristic == nullptr ? UnlistedRange : characteristic->RangeIn(view);
}

Refusal RefuseAmbientTemp2(std::string_view entry, const PartRecord& part, CodeView view, EntryLocale locale)
{
    const auto range = EntryRangeOf(part, view);
    const auto permitted = NumberText(range.MinC) + " to " + NumberText(range.MaxC) + " [C]";
    return Judge(
        entry, locale, [=](float v) { return v >= range.MinC && v <= range.MaxC; },
        Invalid("Ambient Temperature", permitted));
}

Refusal RefuseParameter(std::string_view entry, EntryLocale locale)
{
    return Judge(
        entry, locale, [](float) { return true; },
        "A Non-numerical value exists where numerical value should be in.");
}

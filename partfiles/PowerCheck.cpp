#include "partfiles/PowerCheck.h"

#include "calc/AllowablePower.h"
#include "calc/Bounds.h"
#include "calc/ChartKinds.h"
#include "calc/NumberText.h"
#include "calc/PowerModel.h"
#include "calc/Sweep.h"
#include "calc/TemperatureRise.h"
#include "partdata/Availability.h"
#include "partdata/Characteristic.h"
#include "partdata/FieldNames.h"
#include "partdata/RunTimeError.h"

#include <algorithm>

namespace
{
/// No ceramic capacitor of these characteristics works hotter.
constexpr float HottestC = 200;

bool CheckHeatResistance(const PartRecord& part, ValueFindings& findings)
{
    if (part.Data[Value::HeatResistance] > 0)
    {
        return true;
    }
    findings.AddValue(Severity::Error, "heat-resistance", Value::HeatResistance,
                      "the heat resistance is not positive");
    return false;
}

bool CheckUpperTemperature(const PartRecord& part, ValueFindings& findings)
{
    const float upper = part.Data[Value::UpperTemperature];
    if (upper < LowestHeatingAmbientC || upper > HottestC)
    {
        findings.AddValue(Severity::Error, "upper-temperature", Value::UpperTemperature,
                          "the upper temperature is not between " + NumberText(LowestHeatingAmbientC) +
                              " and " + NumberText(HottestC) + " °C");
        return false;
    }
    const auto* const characteristic = FindCharacteristic(part.Tcc[0]);
    if (characteristic != nullptr && upper > characteristic->RangeIn(CodeView::Eia).MaxC)
    {
        findings.AddValue(Severity::Warning, "class-temperature", Value::UpperTemperature,
                          "the upper temperature lies above that of " + std::string(part.Tcc[0]) + ", " +
                              NumberText(characteristic->RangeIn(CodeView::Eia).MaxC) + " °C");
    }
    return true;
}

/// The frequency-dependent heating by current where it was measured, without bias at 20 °C.
bool CheckCurrentLaw(const PartRecord& part, ValueFindings& findings)
{
    if (!HasData(part, Values::CurrentHeating) && !HasData(part, Values::CurrentHeatingOverTemperature))
    {
        findings.Add(Severity::Warning, "gap", DataNames(Values::CurrentHeating), "0",
                     "other power data are there, but no heating by current");
        return true;
    }
    for (const double hertz : LogFrequencySweep().Hz)
    {
        const double sum = CurrentHeating(part.Data[Value::CurrentPerF], part.Data[Value::Current],
                                          part.Data[Value::CurrentF], hertz);
        if (sum <= 0)
        {
            findings.Add(Severity::Error, "current-heating", "kI", NumberText(static_cast<float>(sum)),
                         "the heating by current is not positive at 20 °C and " +
                             NumberText(ShownValue(Quantity::Frequency, hertz)) + " kHz");
            return false;
        }
    }
    return true;
}

void CheckVoltageGap(const PartRecord& part, ValueGroup surface, const char* name, ValueFindings& findings)
{
    if (!HasData(part, surface))
    {
        findings.Add(Severity::Warning, "gap", DataNames(surface), "0",
                     std::string("other power data are there, but no ") + name +
                         " of the heating by voltage");
    }
}

/// The exponent of the voltage, at every bias and ambient temperature that can be entered.
bool CheckVoltageLaw(const PartRecord& part, ValueFindings& findings)
{
    constexpr int Steps = 10;
    for (int i = 0; i <= Steps; ++i)
    {
        for (int j = 0; j <= Steps; ++j)
        {
            const float volts = part.Data[Value::RatedVoltage] * static_cast<float>(j) / Steps;
            const float celsius =
                LowestHeatingAmbientC +
                (part.Data[Value::UpperTemperature] - LowestHeatingAmbientC) * static_cast<float>(i) / Steps;
            const double exponent = PowerModelOf(part, volts, celsius, part.Data[Value::HeatResistance]).S3;
            if (exponent <= 0)
            {
                findings.Add(Severity::Error, "voltage-exponent", "S3",
                             NumberText(static_cast<float>(exponent)),
                             "the exponent of the voltage is not positive at " + NumberText(celsius) +
                                 " °C and a bias of " + NumberText(volts) + " V");
                return false;
            }
        }
    }
    CheckVoltageGap(part, Values::AmplitudeSurface, "amplitude S1", findings);
    CheckVoltageGap(part, Values::FrequencyExponentSurface, "frequency exponent S2", findings);
    return true;
}

/// Draws every kind of curve at the ends of what can be entered, for what no single value shows.
void CheckPowerCurves(const PartRecord& part)
{
    const double rated = RatedVoltage(part);
    for (const float ambient : {LowestHeatingAmbientC, part.Data[Value::UpperTemperature]})
    {
        for (const float bias : {0.0F, part.Data[Value::RatedVoltage] / 2, part.Data[Value::RatedVoltage]})
        {
            const auto model = PowerModelOf(part, bias, ambient, part.Data[Value::HeatResistance]);
            for (const auto load : Parameters)
            {
                RiseOverLoad(model, rated, LowestFrequencyHz, load);
                RiseOverLoad(model, rated, HighestFrequencyHz, load);
                if (bias < part.Data[Value::RatedVoltage])
                {
                    AllowableLoad(model, AllowableVoltageBound(rated, bias),
                                  dTallow(part.Data[Value::UpperTemperature], ambient), load);
                }
            }
        }
    }
}
} // namespace

void CheckPower(const PartRecord& part, ValueFindings& findings)
{
    // Each rule is tried, and the curves only where none of them has found an error.
    bool sound = CheckHeatResistance(part, findings);
    const bool hasRange = CheckUpperTemperature(part, findings);
    sound = CheckCurrentLaw(part, findings) && sound;
    if (!hasRange)
    {
        return;
    }
    try
    {
        if (CheckVoltageLaw(part, findings) && sound)
        {
            CheckPowerCurves(part);
        }
    }
    catch (const RunTimeError& error)
    {
        findings.Add(Severity::Error, "calculation", "", "",
                     "the power curves cannot be calculated: " + error.Description());
    }
}

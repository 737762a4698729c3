#include "partfiles/PowerCheck.h"

#include "calc/AllowablePower.h"
#include "calc/Capacitance.h"
#include "calc/ChartNames.h"
#include "calc/NumberText.h"
#include "calc/PowerModel.h"
#include "calc/Sweep.h"
#include "calc/TemperatureRise.h"
#include "partdata/RunTimeError.h"

#include <algorithm>

namespace
{
/// The lowest ambient temperature that can be entered for the power charts, and that of the measurement.
constexpr float LowestAmbientC = 20;
/// No ceramic capacitor of these characteristics works hotter.
constexpr float HottestC = 200;

bool CheckHeatResistance(const PartRecord& part, ValueFindings& findings)
{
    if (part.Data[31] > 0)
    {
        return true;
    }
    findings.AddValue(Severity::Error, "heat-resistance", part, 31, "the heat resistance is not positive");
    return false;
}

bool CheckUpperTemperature(const PartRecord& part, ValueFindings& findings)
{
    const float upper = part.Data[65];
    if (upper < LowestAmbientC || upper > HottestC)
    {
        findings.AddValue(Severity::Error, "upper-temperature", part, 65,
                          "the upper temperature is not between " + NumberText(LowestAmbientC) + " and " +
                              NumberText(HottestC) + " °C");
        return false;
    }
    const float classMax = TemperatureRangeOf(part.Tcc[0], CodeView::Eia).MaxC;
    if (classMax != 0 && upper > classMax)
    {
        findings.AddValue(Severity::Warning, "class-temperature", part, 65,
                          "the upper temperature lies above that of " + std::string(part.Tcc[0]) + ", " +
                              NumberText(classMax) + " °C");
    }
    return true;
}

/// The frequency-dependent heating by current where it was measured, without bias at 20 °C.
bool CheckCurrentLaw(const PartRecord& part, ValueFindings& findings)
{
    if (!HasData(part, 28, 30) && !HasData(part, 32, 37))
    {
        findings.Add(Severity::Warning, "gap", "Data(28) to Data(30)", "0",
                     "other power data are there, but no heating by current");
        return true;
    }
    for (const double hertz : LogFrequencySweep().Hz)
    {
        const double sum = part.Data[28] / hertz + part.Data[29] + hertz * part.Data[30];
        if (sum <= 0)
        {
            findings.Add(Severity::Error, "current-heating", "kI", NumberText(static_cast<float>(sum)),
                         "the heating by current is not positive at 20 °C and " +
                             NumberText(static_cast<float>(hertz / 1000)) + " kHz");
            return false;
        }
    }
    return true;
}

void CheckVoltageGap(const PartRecord& part, std::size_t first, const char* name, ValueFindings& findings)
{
    if (!HasData(part, first, first + 8))
    {
        findings.Add(Severity::Warning, "gap",
                     "Data(" + std::to_string(first) + ") to Data(" + std::to_string(first + 8) + ")", "0",
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
            const float volts = part.Data[2] * static_cast<float>(j) / Steps;
            const float celsius =
                LowestAmbientC + (part.Data[65] - LowestAmbientC) * static_cast<float>(i) / Steps;
            const double exponent = PowerModelOf(part, volts, celsius, part.Data[31]).S3;
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
    CheckVoltageGap(part, 38, "amplitude S1", findings);
    CheckVoltageGap(part, 47, "frequency exponent S2", findings);
    return true;
}

/// Draws every kind of curve at the ends of what can be entered, for what no single value shows.
void CheckPowerCurves(const PartRecord& part)
{
    constexpr double LowestHertz = 1e4;
    constexpr double HighestHertz = 1e6;
    const double rated = RatedVoltage(part);
    for (const float ambient : {LowestAmbientC, part.Data[65]})
    {
        for (const float bias : {0.0F, part.Data[2] / 2, part.Data[2]})
        {
            const auto model = PowerModelOf(part, bias, ambient, part.Data[31]);
            for (const auto name : ParameterNames)
            {
                RiseOverLoad(model, rated, LowestHertz, name);
                RiseOverLoad(model, rated, HighestHertz, name);
                if (bias < part.Data[2])
                {
                    AllowableLoad(model, AllowableVoltageBound(rated, bias), dTallow(part.Data[65], ambient),
                                  name);
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

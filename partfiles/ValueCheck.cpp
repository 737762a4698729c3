#include "partfiles/ValueCheck.h"

#include "calc/Capacitance.h"
#include "calc/CapacitanceAxes.h"
#include "calc/ChangePolynomial.h"
#include "calc/NumberText.h"
#include "calc/Sweep.h"
#include "partdata/Availability.h"
#include "partdata/Characteristic.h"
#include "partdata/FieldNames.h"
#include "partdata/RunTimeError.h"
#include "partdata/Windows1252.h"
#include "partfiles/PowerCheck.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace
{
/// Rounding of single-precision coefficients may raise a flat curve by less, in percent.
constexpr double RoundingPercent = 0.01;

std::string RoundedText(double value)
{
    return FormatNumber(static_cast<float>(value), NumberFormat::ReadOut);
}

/// "X7R, X5R and Y5V".
std::string ListedNames()
{
    const auto listed = Characteristics();
    std::string names;
    for (std::size_t i = 0; i < listed.size(); ++i)
    {
        names += i == 0 ? "" : i + 1 < listed.size() ? ", " : " and ";
        names += listed[i].Names[0];
    }
    return names;
}

bool CheckFinite(const PartRecord& part, ValueFindings& findings)
{
    bool allFinite = true;
    for (std::size_t i = 0; i < DataValues; ++i)
    {
        if (!std::isfinite(part.Data[i]))
        {
            findings.AddValue(Severity::Error, "not-finite", i, "the value is not a finite number");
            allFinite = false;
        }
    }
    return allFinite;
}

void CheckRatings(const PartRecord& part, ValueFindings& findings)
{
    for (const auto i : {Value::Capacitance, Value::NominalCapacitance})
    {
        if (part.Data[i] <= 0)
        {
            findings.AddValue(Severity::Error, "capacitance", i, "the capacitance is not positive");
        }
    }
    if (part.Data[Value::RatedVoltage] <= 0)
    {
        findings.AddValue(Severity::Error, "rated-voltage", Value::RatedVoltage,
                          "the rated voltage is not positive");
    }
}

/// Tells a group of coefficients that the curves of the part need and that is all zero.
void CheckGroup(const PartRecord& part, ValueGroup group, const std::string& what, ValueFindings& findings)
{
    if (!HasData(part, group))
    {
        const auto field = group.First == group.Last ? DataName(group.First) : DataNames(group);
        findings.Add(Severity::Warning, "gap", field, "0", "other capacitance data are there, but " + what);
    }
}

/// As `CheckGroup`, for a value on its own.
void CheckGroup(const PartRecord& part, Value::Index value, const std::string& what, ValueFindings& findings)
{
    CheckGroup(part, ValueGroup{value, value}, what, findings);
}

void CheckCapacitanceGaps(const PartRecord& part, CapacitanceModel model, ValueFindings& findings)
{
    CheckGroup(part, Values::BiasPolynomial, "no change over bias", findings);
    if (model == CapacitanceModel::Polynomial)
    {
        CheckGroup(part, Values::TemperaturePolynomial, "no change over temperature", findings);
        return;
    }
    if (!HasData(part, Values::PeakedModel))
    {
        CheckGroup(part, Values::PeakedModel, "no change over temperature", findings);
        return;
    }
    CheckGroup(part, Value::PeakAmplitude, "no peak amplitude", findings);
    CheckGroup(part, Values::PeakTemperature, "no peak temperature", findings);
    CheckGroup(part, Values::DecayBelow, "no decay below the peak", findings);
    CheckGroup(part, Values::DecayAbove, "no decay above the peak", findings);
    CheckGroup(part, Value::ExponentBelow, "no exponent below the peak", findings);
    CheckGroup(part, Value::ExponentAbove, "no exponent above the peak", findings);
}

void CheckBias(const PartRecord& part, ValueFindings& findings)
{
    double least = 0;
    for (const double volts : LinearSweep(0, part.Data[Value::RatedVoltage]))
    {
        const double change = BiasChange(part.Data, volts);
        if (change > least + RoundingPercent)
        {
            findings.Add(Severity::Warning, "bias-growth", "", RoundedText(change),
                         "capacitance grows under bias: change " + RoundedText(change) + " % at " +
                             RoundedText(volts) + " V, " + RoundedText(least) + " % below");
            return;
        }
        least = std::min(least, change);
    }
}

void CheckClassLimits(const Characteristic& limits, const Curve& unbiased, ValueFindings& findings)
{
    for (std::size_t i = 0; i < CurvePoints; ++i)
    {
        const float change = unbiased.YData[i];
        if (change < limits.LeastChange || change > limits.MostChange)
        {
            findings.Add(Severity::Warning, "class-limit", "", RoundedText(change),
                         "change of capacitance " + RoundedText(change) + " % at " +
                             RoundedText(unbiased.XData[i]) + " °C without bias; " +
                             std::string(limits.Names[0]) + " permits " + RoundedText(limits.LeastChange) +
                             " to " + RoundedText(limits.MostChange) + " %");
            return;
        }
    }
}

/// True when the curve stays above nothing; else tells where it falls below.
bool CheckNotNegative(const Curve& curve, const std::string& conditions, const char* unit,
                      ValueFindings& findings)
{
    const auto lowest = std::ranges::min_element(curve.YData);
    if (*lowest >= -100)
    {
        return true;
    }
    const auto at = curve.XData[static_cast<std::size_t>(lowest - curve.YData.begin())];
    findings.Add(Severity::Error, "below-zero", "", RoundedText(*lowest),
                 "capacitance below zero: change " + RoundedText(*lowest) + " % at " + RoundedText(at) +
                     unit + conditions);
    return false;
}

void CheckCapacitanceCurves(const PartRecord& part, const Characteristic& characteristic,
                            ValueFindings& findings)
{
    const auto& range = characteristic.RangeIn(CodeView::Eia);
    const float rated = part.Data[Value::RatedVoltage];
    try
    {
        CheckClassLimits(characteristic,
                         CalcCapTemperature(part, 0, Quantity::CapacitanceChange, CodeView::Eia), findings);
        for (const float volts : {0.0F, rated / 4, rated / 2, rated / 4 * 3, rated})
        {
            if (!CheckNotNegative(CalcCapTemperature(part, volts, Quantity::CapacitanceChange, CodeView::Eia),
                                  " and " + RoundedText(volts) + " V", " °C", findings))
            {
                return;
            }
        }
        for (const float celsius : {range.MinC, 25.0F, range.MaxC})
        {
            if (!CheckNotNegative(CalcCapDCVoltage(part, celsius, Quantity::CapacitanceChange, CodeView::Eia),
                                  " and " + RoundedText(celsius) + " °C", " V", findings))
            {
                return;
            }
        }
        CalcCapTemperature(part, rated, Quantity::Capacitance, CodeView::Jis);
    }
    catch (const RunTimeError& error)
    {
        findings.Add(Severity::Error, "calculation", "", "",
                     "the capacitance curves cannot be calculated: " + error.Description());
    }
}

void CheckCapacitance(const PartRecord& part, const Characteristic& characteristic, ValueFindings& findings)
{
    CheckCapacitanceGaps(part, CapacitanceModelOf(part), findings);
    CheckBias(part, findings);
    CheckCapacitanceCurves(part, characteristic, findings);
}
} // namespace

void CheckValues(const PartRecord& part, ValueFindings& findings)
{
    const auto* const characteristic = FindCharacteristic(part.Tcc[0]);
    if (characteristic == nullptr)
    {
        findings.AddName(Severity::Error, "characteristic", FirstTccField,
                         "the temperature characteristic is none of " + ListedNames());
    }
    if (!CheckFinite(part, findings))
    {
        return;
    }
    const bool hasCapacitance = HasData(part, Values::OfCapacitance);
    const bool hasPower = HasData(part, Values::OfPower);
    if (!hasCapacitance && !hasPower)
    {
        findings.Add(Severity::Warning, "no-data", "", "", "the part has no data for any chart");
        return;
    }
    CheckRatings(part, findings);
    if (part.Data[Value::RatedVoltage] <= 0)
    {
        return;
    }
    if (hasCapacitance && characteristic != nullptr && part.Data[Value::NominalCapacitance] > 0)
    {
        CheckCapacitance(part, *characteristic, findings);
    }
    if (hasPower)
    {
        CheckPower(part, findings);
    }
}

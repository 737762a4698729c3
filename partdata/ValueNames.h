#pragma once

/// What each of the values of a part is: its name, its unit and the group it belongs to.
///
/// A value is reached as `part.Data[Value::RatedVoltage]`. Everything that tells the values apart, from the
/// laws to the headings of the part table, asks this header.

#include <array>
#include <cstddef>
#include <string_view>

/// The values of a data record in the order of the file.
///
/// In the names, V is the bias, X the temperature counted from 25 °C, T the one counted from 20 °C, R the
/// bias over the rated voltage and F the frequency in Hz; a digit is a power. A name stands for the
/// coefficient of that product: `AmplitudeTR2` is the one of t·r².
namespace Value
{
enum Index : std::size_t
{
    Capacitance,
    NominalCapacitance,
    RatedVoltage,
    BiasV6,
    BiasV5,
    BiasV4,
    BiasV3,
    BiasV2,
    BiasV,
    TemperatureX6,
    TemperatureX5,
    TemperatureX4,
    TemperatureX3,
    TemperatureX2,
    TemperatureX,
    PeakAmplitude,
    PeakOffset,
    PeakTemperatureV2,
    PeakTemperatureV,
    PeakTemperature,
    DecayBelowV2,
    DecayBelowV,
    DecayBelow,
    DecayAboveV2,
    DecayAboveV,
    DecayAbove,
    ExponentBelow,
    ExponentAbove,
    CurrentPerF,
    Current,
    CurrentF,
    HeatResistance,
    CurrentTPerF,
    CurrentT2PerF,
    CurrentT,
    CurrentT2,
    CurrentTF,
    CurrentT2F,
    AmplitudeT2R2,
    AmplitudeT2R,
    AmplitudeT2,
    AmplitudeTR2,
    AmplitudeTR,
    AmplitudeT,
    AmplitudeR2,
    AmplitudeR,
    Amplitude,
    FrequencyExponentT2R2,
    FrequencyExponentT2R,
    FrequencyExponentT2,
    FrequencyExponentTR2,
    FrequencyExponentTR,
    FrequencyExponentT,
    FrequencyExponentR2,
    FrequencyExponentR,
    FrequencyExponent,
    VoltageExponentT2R2,
    VoltageExponentT2R,
    VoltageExponentT2,
    VoltageExponentTR2,
    VoltageExponentTR,
    VoltageExponentT,
    VoltageExponentR2,
    VoltageExponentR,
    VoltageExponent,
    UpperTemperature,
    Count,
};
} // namespace Value

/// How many values a part has.
inline constexpr std::size_t DataValues = Value::Count;

/// A run of neighbouring values, both ends included.
struct ValueGroup
{
    std::size_t First;
    std::size_t Last;

    bool operator==(const ValueGroup&) const = default;
};

/// Groups of values that are used, checked or missing together.
namespace Values
{
/// What the capacitance charts need: a part without any of it is not offered there.
inline constexpr ValueGroup OfCapacitance = {Value::BiasV6, Value::ExponentAbove};
/// What the power charts need.
inline constexpr ValueGroup OfPower = {Value::CurrentPerF, Value::UpperTemperature};

/// Change of capacitance over bias: coefficients of V^6 to V.
inline constexpr ValueGroup BiasPolynomial = {Value::BiasV6, Value::BiasV};
/// Change of capacitance over temperature: coefficients of x^6 to x.
inline constexpr ValueGroup TemperaturePolynomial = {Value::TemperatureX6, Value::TemperatureX};
/// The peaked model of the change over temperature, and its three quadratics in V.
inline constexpr ValueGroup PeakedModel = {Value::PeakAmplitude, Value::ExponentAbove};
inline constexpr ValueGroup PeakTemperature = {Value::PeakTemperatureV2, Value::PeakTemperature};
inline constexpr ValueGroup DecayBelow = {Value::DecayBelowV2, Value::DecayBelow};
inline constexpr ValueGroup DecayAbove = {Value::DecayAboveV2, Value::DecayAbove};

/// Heating by current at 20 °C: terms in 1/f, 1 and f.
inline constexpr ValueGroup CurrentHeating = {Value::CurrentPerF, Value::CurrentF};
/// How these three change with temperature.
inline constexpr ValueGroup CurrentHeatingOverTemperature = {Value::CurrentTPerF, Value::CurrentT2F};
/// Heating by voltage: surfaces over t and r, nine coefficients each, from t²·r² down to the constant. The
/// logarithm of the amplitude, the exponent of the frequency's logarithm, the exponent of the voltage.
inline constexpr ValueGroup AmplitudeSurface = {Value::AmplitudeT2R2, Value::Amplitude};
inline constexpr ValueGroup FrequencyExponentSurface = {Value::FrequencyExponentT2R2,
                                                        Value::FrequencyExponent};
inline constexpr ValueGroup VoltageExponentSurface = {Value::VoltageExponentT2R2, Value::VoltageExponent};
} // namespace Values

/// A value as people read it: "rated voltage" in "V". A pure number has no unit.
struct ValueName
{
    Value::Index Index;
    std::string_view Name;
    std::string_view Unit;
};

/// The name of each value, in the order of the file.
inline constexpr std::array<ValueName, DataValues> ValueNames = {{
    {Value::Capacitance, "capacitance", "pF"},
    {Value::NominalCapacitance, "nominal capacitance", "pF"},
    {Value::RatedVoltage, "rated voltage", "V"},
    {Value::BiasV6, "bias V^6", "%/V^6"},
    {Value::BiasV5, "bias V^5", "%/V^5"},
    {Value::BiasV4, "bias V^4", "%/V^4"},
    {Value::BiasV3, "bias V^3", "%/V^3"},
    {Value::BiasV2, "bias V^2", "%/V^2"},
    {Value::BiasV, "bias V", "%/V"},
    {Value::TemperatureX6, "temperature x^6", "%/°C^6"},
    {Value::TemperatureX5, "temperature x^5", "%/°C^5"},
    {Value::TemperatureX4, "temperature x^4", "%/°C^4"},
    {Value::TemperatureX3, "temperature x^3", "%/°C^3"},
    {Value::TemperatureX2, "temperature x^2", "%/°C^2"},
    {Value::TemperatureX, "temperature x", "%/°C"},
    {Value::PeakAmplitude, "peak amplitude", "%"},
    {Value::PeakOffset, "peak offset", "%"},
    {Value::PeakTemperatureV2, "peak temperature V^2", "°C/V^2"},
    {Value::PeakTemperatureV, "peak temperature V", "°C/V"},
    {Value::PeakTemperature, "peak temperature", "°C"},
    {Value::DecayBelowV2, "decay below V^2", "1/(°C^n V^2)"},
    {Value::DecayBelowV, "decay below V", "1/(°C^n V)"},
    {Value::DecayBelow, "decay below", "1/°C^n"},
    {Value::DecayAboveV2, "decay above V^2", "1/(°C^n V^2)"},
    {Value::DecayAboveV, "decay above V", "1/(°C^n V)"},
    {Value::DecayAbove, "decay above", "1/°C^n"},
    {Value::ExponentBelow, "exponent n below", ""},
    {Value::ExponentAbove, "exponent n above", ""},
    {Value::CurrentPerF, "current heating 1/f", "°C Hz/A^2"},
    {Value::Current, "current heating", "°C/A^2"},
    {Value::CurrentF, "current heating f", "°C/(A^2 Hz)"},
    {Value::HeatResistance, "heat resistance", "°C/W"},
    {Value::CurrentTPerF, "current heating t/f", "Hz/A^2"},
    {Value::CurrentT2PerF, "current heating t^2/f", "Hz/(A^2 °C)"},
    {Value::CurrentT, "current heating t", "1/A^2"},
    {Value::CurrentT2, "current heating t^2", "1/(A^2 °C)"},
    {Value::CurrentTF, "current heating t f", "1/(A^2 Hz)"},
    {Value::CurrentT2F, "current heating t^2 f", "1/(A^2 °C Hz)"},
    {Value::AmplitudeT2R2, "voltage heating S1 t^2 r^2", "1/°C^2"},
    {Value::AmplitudeT2R, "voltage heating S1 t^2 r", "1/°C^2"},
    {Value::AmplitudeT2, "voltage heating S1 t^2", "1/°C^2"},
    {Value::AmplitudeTR2, "voltage heating S1 t r^2", "1/°C"},
    {Value::AmplitudeTR, "voltage heating S1 t r", "1/°C"},
    {Value::AmplitudeT, "voltage heating S1 t", "1/°C"},
    {Value::AmplitudeR2, "voltage heating S1 r^2", ""},
    {Value::AmplitudeR, "voltage heating S1 r", ""},
    {Value::Amplitude, "voltage heating S1", ""},
    {Value::FrequencyExponentT2R2, "voltage heating S2 t^2 r^2", "1/°C^2"},
    {Value::FrequencyExponentT2R, "voltage heating S2 t^2 r", "1/°C^2"},
    {Value::FrequencyExponentT2, "voltage heating S2 t^2", "1/°C^2"},
    {Value::FrequencyExponentTR2, "voltage heating S2 t r^2", "1/°C"},
    {Value::FrequencyExponentTR, "voltage heating S2 t r", "1/°C"},
    {Value::FrequencyExponentT, "voltage heating S2 t", "1/°C"},
    {Value::FrequencyExponentR2, "voltage heating S2 r^2", ""},
    {Value::FrequencyExponentR, "voltage heating S2 r", ""},
    {Value::FrequencyExponent, "voltage heating S2", ""},
    {Value::VoltageExponentT2R2, "voltage heating S3 t^2 r^2", "1/°C^2"},
    {Value::VoltageExponentT2R, "voltage heating S3 t^2 r", "1/°C^2"},
    {Value::VoltageExponentT2, "voltage heating S3 t^2", "1/°C^2"},
    {Value::VoltageExponentTR2, "voltage heating S3 t r^2", "1/°C"},
    {Value::VoltageExponentTR, "voltage heating S3 t r", "1/°C"},
    {Value::VoltageExponentT, "voltage heating S3 t", "1/°C"},
    {Value::VoltageExponentR2, "voltage heating S3 r^2", ""},
    {Value::VoltageExponentR, "voltage heating S3 r", ""},
    {Value::VoltageExponent, "voltage heating S3", ""},
    {Value::UpperTemperature, "upper temperature", "°C"},
}};

/// A row that is missing, or out of its order, does not compile.
static_assert(
    []
    {
        for (std::size_t i = 0; i < ValueNames.size(); ++i)
        {
            if (ValueNames[i].Index != i || ValueNames[i].Name.empty())
            {
                return false;
            }
        }
        return true;
    }());

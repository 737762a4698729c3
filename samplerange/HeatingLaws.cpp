#include "samplerange/HeatingLaws.h"

#include "samplerange/Fitting.h"
#include "samplerange/PlainMath.h"

#include <cmath>
#include <vector>

namespace
{

constexpr double Pi = 3.14159265358979323846;
/// The rise at which current and voltage law agree.
constexpr double AgreedRise = 20;
/// Frequency at which the skin effect has doubled the resistance of the electrodes.
constexpr double SkinHz = 50e6;
constexpr double ReferenceC = 20;
constexpr double RoomC = 25;
/// Capacitance at which so many electrodes lie side by side that they resist half as much.
constexpr double ManyLayersFarads = 47e-6;
/// The voltage law keeps this common logarithm below the current law, to the safe side.
constexpr double SafeSide = 0.0245;

constexpr TemperatureFactor ElectrodeChange{0.0039, 0};

double HighestOperatingC(const PartDesign& part)
{
    return CharacteristicNamed(part.Characteristic).RangeIn(CodeView::Eia).MaxC;
}

/// ESR = CeramicOhmHz/f + ElectrodeOhms·(1 + f/SkinHz).
struct SeriesResistance
{
    double CeramicOhmHz;
    double ElectrodeOhms;
    TemperatureFactor Ceramic;

    double At(double hz, double t) const
    {
        return CeramicOhmHz / hz * Ceramic.At(t) + ElectrodeOhms * (1 + hz / SkinHz) * ElectrodeChange.At(t);
    }
};

SeriesResistance SeriesResistanceOf(const PartDesign& part)
{
    const double farads = static_cast<double>(part.Picofarads) * 1e-12;
    const double electrodes = part.Size->ElectrodeMilliohms / 1000 / (1 + farads / ManyLayersFarads);
    return {LossFactor(part) / (2 * Pi * farads), electrodes, CeramicOf(part.Characteristic).LossChange};
}

void WriteCurrentLaw(const SeriesResistance& resistance, double heatResistance, PartValues& data)
{
    const double ceramic = resistance.CeramicOhmHz * heatResistance;
    const double electrode = resistance.ElectrodeOhms * heatResistance;
    data[Value::CurrentPerF] = ceramic;
    data[Value::CurrentTPerF] = ceramic * resistance.Ceramic.Linear;
    data[Value::CurrentT2PerF] = ceramic * resistance.Ceramic.Square;
    data[Value::Current] = electrode;
    data[Value::CurrentT] = electrode * ElectrodeChange.Linear;
    data[Value::CurrentT2] = electrode * ElectrodeChange.Square;
    data[Value::CurrentF] = electrode / SkinHz;
    data[Value::CurrentTF] = electrode / SkinHz * ElectrodeChange.Linear;
    data[Value::CurrentT2F] = electrode / SkinHz * ElectrodeChange.Square;
    data[Value::HeatResistance] = heatResistance;
}

/// Common logarithm of the voltage of 20 °C rise at 20 °C without bias: Constant - Slope·log10(log10 f).
struct VoltageOverFrequency
{
    double Constant;
    double Slope;
};

VoltageOverFrequency FitVoltage(const PartDesign& part, const SeriesResistance& resistance)
{
    constexpr int steps = 40;
    const double farads = static_cast<double>(part.Picofarads) * 1e-12;
    std::vector<Sample> samples;
    for (int i = 0; i <= steps; ++i)
    {
        const double decade = 4 + 2.0 * i / steps;
        const double hz = PlainPower(10, decade);
        const double amperes = std::sqrt(AgreedRise / (resistance.At(hz, 0) * part.Size->HeatResistance));
        samples.push_back({PlainLog10(decade), PlainLog10(amperes / (2 * Pi * hz * farads))});
    }
    const auto line = FitSmallestDeviation(samples, 2);
    return {line[0], -line[1]};
}

/// c[0] + c[1]·r + c[2]·r²: common logarithm of the capacitance at a fraction r of the rated voltage,
/// relative to the one without bias.
std::vector<double> FitBias(const PartDesign& part, const PartValues& data)
{
    constexpr int steps = 40;
    std::vector<Sample> samples;
    for (int i = 0; i <= steps; ++i)
    {
        const double r = static_cast<double>(i) / steps;
        samples.push_back({r, PlainLog10(BiasedCapacitance(data, r * part.Volts))});
    }
    return FitSmallestDeviation(samples, 3);
}

/// Linear·t + Square·t²: common logarithm of the voltage of 20 °C rise at 100 kHz, relative to 20 °C.
struct Warmth
{
    double Linear;
    double Square;
};

/// The parabola that is right at 20 °C, at room temperature, where most charts are asked for, and at the
/// highest operating temperature.
Warmth WarmthOf(const PartDesign& part, const SeriesResistance& resistance)
{
    constexpr double hz = 1e5;
    const auto voltage = [&](double t)
    {
        const double current = -PlainLog10(resistance.At(hz, t) / resistance.At(hz, 0)) / 2;
        return current - PlainLog10(RelativeCapacitance(part, ReferenceC + t));
    };
    const double room = RoomC - ReferenceC;
    const double hot = HighestOperatingC(part) - ReferenceC;
    const double square = (voltage(hot) / hot - voltage(room) / room) / (hot - room);
    return {voltage(room) / room - square * room, square};
}

/// The exponent of the voltage law: AtRest + r·WithBias + t·WithTemperature.
struct Exponent
{
    double AtRest;
    double WithBias;
    double WithTemperature;
};

/// Thin layers lose more than with the square of the voltage.
Exponent ExponentOf(const PartDesign& part)
{
    const double base = CeramicOf(part.Characteristic).LossExponent;
    return {base + 0.2 * Thinness(part), 0.05 * BiasLoss(part, 1), -0.0006};
}

} // namespace

void WriteHeatingLaws(const PartDesign& part, PartValues& data)
{
    const auto resistance = SeriesResistanceOf(part);
    WriteCurrentLaw(resistance, part.Size->HeatResistance, data);

    // Rise = 10^E·(log10 f)^S2·V^S3 is 20 °C at log10 V = Constant - Slope·log10 log10 f - bias + warmth:
    // S2 = S3·Slope and E = log10 20 - S3·(Constant - bias + warmth), up to squares of r and t.
    const auto voltage = FitVoltage(part, resistance);
    const auto bias = FitBias(part, data);
    const auto warmth = WarmthOf(part, resistance);
    const auto exponent = ExponentOf(part);

    const double constant = voltage.Constant - bias[0] - SafeSide;
    data[Value::Amplitude] = PlainLog10(AgreedRise) - exponent.AtRest * constant;
    data[Value::AmplitudeR] = exponent.AtRest * bias[1] - exponent.WithBias * constant;
    data[Value::AmplitudeR2] = exponent.AtRest * bias[2] + exponent.WithBias * bias[1];
    data[Value::AmplitudeT] = -exponent.AtRest * warmth.Linear - exponent.WithTemperature * constant;
    data[Value::AmplitudeTR] = -exponent.WithBias * warmth.Linear + exponent.WithTemperature * bias[1];
    data[Value::AmplitudeTR2] = exponent.WithTemperature * bias[2];
    data[Value::AmplitudeT2] = -exponent.AtRest * warmth.Square - exponent.WithTemperature * warmth.Linear;
    data[Value::AmplitudeT2R] = -exponent.WithBias * warmth.Square;

    data[Value::FrequencyExponent] = exponent.AtRest * voltage.Slope;
    data[Value::FrequencyExponentR] = exponent.WithBias * voltage.Slope;
    data[Value::FrequencyExponentT] = exponent.WithTemperature * voltage.Slope;

    data[Value::VoltageExponent] = exponent.AtRest;
    data[Value::VoltageExponentR] = exponent.WithBias;
    data[Value::VoltageExponentT] = exponent.WithTemperature;

    data[Value::UpperTemperature] = HighestOperatingC(part);
}

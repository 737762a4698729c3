#include "fit/VoltageLaw.h"

#include "fit/LeastSquares.h"
#include "fit/PlainMath.h"

#include <cmath>
#include <vector>

namespace
{
constexpr double Pi = 3.14159265358979323846;
/// The rise at which current and voltage law agree.
constexpr double AgreedRise = 20;
constexpr double ReferenceC = 20;
constexpr double RoomC = 25;
/// The voltage law keeps this common logarithm below the current law, to the safe side.
constexpr double SafeSide = 0.0245;

/// Common logarithm of the voltage of 20 °C rise at 20 °C without bias: Constant - Slope·log10(log10 f).
struct VoltageOverFrequency
{
    double Constant;
    double Slope;
};

VoltageOverFrequency FitVoltage(const VoltageLawSource& source)
{
    constexpr int steps = 40;
    std::vector<Sample> samples;
    for (int i = 0; i <= steps; ++i)
    {
        const double decade = 4 + 2.0 * i / steps;
        const double hz = PlainPower(10, decade);
        const double amperes = std::sqrt(AgreedRise / (source.SeriesOhms(hz, 0) * source.HeatResistance));
        samples.push_back({PlainLog10(decade), PlainLog10(amperes / (2 * Pi * hz * source.Farads))});
    }
    const auto line = FitSmallestDeviation(samples, 2);
    return {line[0], -line[1]};
}

/// c[0] + c[1]·r + c[2]·r²: common logarithm of the capacitance at a fraction r of the rated voltage.
std::vector<double> FitBias(const VoltageLawSource& source)
{
    constexpr int steps = 40;
    std::vector<Sample> samples;
    for (int i = 0; i <= steps; ++i)
    {
        const double r = static_cast<double>(i) / steps;
        samples.push_back({r, PlainLog10(source.OverBias(r))});
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
Warmth WarmthOf(const VoltageLawSource& source)
{
    constexpr double hz = 1e5;
    const auto voltage = [&](double t)
    {
        const double current = -PlainLog10(source.SeriesOhms(hz, t) / source.SeriesOhms(hz, 0)) / 2;
        return current - PlainLog10(source.OverTemperature(ReferenceC + t));
    };
    const double room = RoomC - ReferenceC;
    const double hot = source.HighestC - ReferenceC;
    const double square = (voltage(hot) / hot - voltage(room) / room) / (hot - room);
    return {voltage(room) / room - square * room, square};
}
} // namespace

void WriteVoltageLaw(const VoltageLawSource& source, PartValues& data)
{
    // Rise = 10^E·(log10 f)^S2·V^S3 is 20 °C at log10 V = Constant - Slope·log10 log10 f - bias + warmth:
    // S2 = S3·Slope and E = log10 20 - S3·(Constant - bias + warmth), up to squares of r and t.
    const auto voltage = FitVoltage(source);
    const auto bias = FitBias(source);
    const auto warmth = WarmthOf(source);
    const auto& exponent = source.Exponent;

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
}

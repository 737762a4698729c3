#include "fit/VoltageLaw.h"

#include "fit/LeastSquares.h"
#include "fit/PlainMath.h"

#include <cmath>
#include <vector>

namespace
{
constexpr double Pi = 3.14159265358979323846;
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
        const double amperes = std::sqrt(AgreedRiseC / (source.SeriesOhms(hz, 0) * source.HeatResistance));
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

VoltageTerms VoltageTermsOf(const VoltageLawSource& source)
{
    const auto voltage = FitVoltage(source);
    const auto bias = FitBias(source);
    const auto warmth = WarmthOf(source);
    return {.Constant = voltage.Constant - bias[0] - SafeSide,
            .Slope = voltage.Slope,
            .BiasLinear = bias[1],
            .BiasSquare = bias[2],
            .WarmthLinear = warmth.Linear,
            .WarmthSquare = warmth.Square,
            .Exponent = source.Exponent};
}

void WriteVoltageTerms(const VoltageTerms& terms, PartValues& data)
{
    // Rise = 10^E·(log10 f)^S2·V^S3 is 20 °C at log10 V = Constant - Slope·log10 log10 f - bias + warmth:
    // S2 = S3·Slope and E = log10 20 - S3·(Constant - bias + warmth), up to squares of r and t.
    const auto& exponent = terms.Exponent;
    data[Value::Amplitude] = PlainLog10(AgreedRiseC) - exponent.AtRest * terms.Constant;
    data[Value::AmplitudeR] = exponent.AtRest * terms.BiasLinear - exponent.WithBias * terms.Constant;
    data[Value::AmplitudeR2] = exponent.AtRest * terms.BiasSquare + exponent.WithBias * terms.BiasLinear;
    data[Value::AmplitudeT] =
        -exponent.AtRest * terms.WarmthLinear - exponent.WithTemperature * terms.Constant;
    data[Value::AmplitudeTR] =
        -exponent.WithBias * terms.WarmthLinear + exponent.WithTemperature * terms.BiasLinear;
    data[Value::AmplitudeTR2] = exponent.WithTemperature * terms.BiasSquare;
    data[Value::AmplitudeT2] =
        -exponent.AtRest * terms.WarmthSquare - exponent.WithTemperature * terms.WarmthLinear;
    data[Value::AmplitudeT2R] = -exponent.WithBias * terms.WarmthSquare;

    data[Value::FrequencyExponent] = exponent.AtRest * terms.Slope;
    data[Value::FrequencyExponentR] = exponent.WithBias * terms.Slope;
    data[Value::FrequencyExponentT] = exponent.WithTemperature * terms.Slope;

    data[Value::VoltageExponent] = exponent.AtRest;
    data[Value::VoltageExponentR] = exponent.WithBias;
    data[Value::VoltageExponentT] = exponent.WithTemperature;
}

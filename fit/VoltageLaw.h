#pragma once

/// The heating by voltage of a part whose heating by current and capacitance are known.

#include "fit/PartValues.h"

#include <functional>

/// The rise in °C at which current and voltage law agree.
inline constexpr double AgreedRiseC = 20;

/// The exponent of the voltage: AtRest + r·WithBias + t·WithTemperature, r the bias over the rated voltage,
/// t = T - 20.
struct VoltageExponent
{
    double AtRest;
    double WithBias;
    double WithTemperature;
};

/// What the voltage law follows from.
struct VoltageLawSource
{
    /// Equivalent series resistance in ohms at a frequency in Hz and t = T - 20; above 0.
    std::function<double(double hz, double t)> SeriesOhms;
    /// In °C/W.
    double HeatResistance;
    /// Capacitance without bias.
    double Farads;
    /// Capacitance at a fraction r of the rated voltage, and at a temperature in °C, as relative to anything
    /// that is the same for all r and all temperatures; above 0.
    std::function<double(double r)> OverBias;
    std::function<double(double celsius)> OverTemperature;
    VoltageExponent Exponent;
    /// Highest operating temperature in °C.
    double HighestC;
};

/// The voltage law: the common logarithm of the voltage of 20 °C rise is Constant - Slope·log10(log10 f) less
/// the bias terms in r and r², plus the warmth terms in t and t².
struct VoltageTerms
{
    double Constant;
    double Slope;
    double BiasLinear;
    double BiasSquare;
    double WarmthLinear;
    double WarmthSquare;
    VoltageExponent Exponent;
};

/// At every frequency and bias the voltage that belongs to the current of 20 °C rise, current/(2πfC) with C
/// at that bias; its power of log10 f comes as close to that as it can over 10 kHz to 1 MHz.
VoltageTerms VoltageTermsOf(const VoltageLawSource& source);

/// Writes the three surfaces of the voltage law.
void WriteVoltageTerms(const VoltageTerms& terms, PartValues& data);
